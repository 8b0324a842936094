// The page's state, which stands in the address behind "#": the view and what it shows. Browsers let a page
// change its address some three times a second, so that keystrokes are gathered before they are written.
export type State = Record<string, string>;

const kGathered = 400; // ms

const read = (): State => Object.fromEntries(new URLSearchParams(location.hash.slice(1)));
const addressOf = (values: State) => `#${new URLSearchParams(values)}`;

let now = read();
let timer = 0;

// Entries of the history have numbers. What was typed in one that was left before its address followed is kept.
let entry = Date.now();
const unwritten = new Map<number, State>();
const numbered = (): number => {
  const known = (history.state as { entry?: number } | null)?.entry;
  if (known === undefined) history.replaceState({ entry: ++entry }, "");
  return known ?? entry;
};
let here = numbered();

function write(): void {
  clearTimeout(timer);
  timer = 0;
  if (addressOf(now) !== location.hash) history.replaceState(history.state, "", addressOf(now));
}

function push(values: State): void {
  here = ++entry;
  history.pushState({ entry }, "", addressOf(values));
}

addEventListener("pagehide", write);
addEventListener("popstate", () => {
  if (timer) unwritten.set(here, now);
  clearTimeout(timer);
  timer = 0;
  here = numbered();
  now = unwritten.get(here) ?? read();
  unwritten.delete(here);
  write();
});

// The number of the entry that the page is at.
export const entryNow = (): number => here;

export const state = (): Readonly<State> => now;

// Changes keys of the state; an empty value takes a key away. `step`: the way back leads here.
export function change(values: State, step = false): void {
  if (step) write();
  now = Object.fromEntries(Object.entries({ ...now, ...values }).filter(([, value]) => value !== ""));
  if (!step) timer ||= setTimeout(write, kGathered);
  else if (addressOf(now) !== location.hash) push(now);
}

// Shows another view, with nothing of the last one but what concerns the whole page.
export function go(values: State): void {
  write();
  const { lang, theme } = now;
  const kept = { ...(lang ? { lang } : {}), ...(theme ? { theme } : {}), ...values };
  push(kept);
  drawAnew();
}

// A choice that changes the whole view, as a step: what stood there before it goes at once.
export function choose(values: State): void {
  change(values, true);
  drawAnew();
}

const drawAnew = () => void dispatchEvent(new Event("popstate"));

// Several texts as one value; the mark between them is escaped within them. Not empty, so that the key stays.
export const inOne = (texts: string[], mark: string): string =>
  texts.map((text) => text.replaceAll("%", "%25").replaceAll(mark, encodeURIComponent(mark))).join(mark) || mark;

export const parted = (text: string, mark: string): string[] => text.split(mark).map((part) => {
  try {
    return decodeURIComponent(part);
  } catch {
    return part; // not made here
  }
});

let views = 0;

// A view is about to be drawn. Tells whether no other has been since: what an older one still has to say, when
// its answers come, counts no more.
export function startView(): () => boolean {
  const mine = ++views;
  return () => mine === views;
}
