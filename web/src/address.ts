// The page's state, which stands in the address behind "#": the view and what it shows. Browsers let a page
// change its address some three times a second, so that keystrokes are gathered before they are written.
export type State = Record<string, string>;

const kGathered = 400; // ms

const read = (): State => Object.fromEntries(new URLSearchParams(location.hash.slice(1)));
const addressOf = (values: State) => `#${new URLSearchParams(values)}`;

let now = read();
let timer = 0;

function write(): void {
  clearTimeout(timer);
  timer = 0;
  if (addressOf(now) !== location.hash) history.replaceState(null, "", addressOf(now));
}

addEventListener("pagehide", write);
addEventListener("popstate", () => {
  clearTimeout(timer);
  timer = 0;
  now = read();
});

export const state = (): Readonly<State> => now;

// Changes keys of the state; an empty value takes a key away. `step`: the way back leads here.
export function change(values: State, step = false): void {
  if (step) write();
  now = Object.fromEntries(Object.entries({ ...now, ...values }).filter(([, value]) => value !== ""));
  if (!step) timer ||= setTimeout(write, kGathered);
  else if (addressOf(now) !== location.hash) history.pushState(null, "", addressOf(now));
}

// Shows another view, with nothing of the last one but what concerns the whole page.
export function go(values: State): void {
  write();
  const { lang, theme } = now;
  const kept = { ...(lang ? { lang } : {}), ...(theme ? { theme } : {}), ...values };
  history.pushState(null, "", addressOf(kept));
  dispatchEvent(new Event("popstate"));
}

let views = 0;

// A view is about to be drawn. Tells whether no other has been since: what an older one still has to say, when
// its answers come, counts no more.
export function startView(): () => boolean {
  const mine = ++views;
  return () => mine === views;
}
