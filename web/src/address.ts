// The page's state, which stands in the address behind "#": the view and what it shows.
export type State = Record<string, string>;

export function state(): State {
  return Object.fromEntries(new URLSearchParams(location.hash.slice(1)));
}

// Changes keys of the state; an empty value takes a key away. `step`: the way back leads here.
export function change(values: State, step = false): void {
  const next = new URLSearchParams(location.hash.slice(1));
  for (const [key, value] of Object.entries(values)) {
    if (value === "") next.delete(key);
    else next.set(key, value);
  }
  const address = `#${next}`;
  if (address === location.hash) return;
  if (step) history.pushState(null, "", address);
  else history.replaceState(null, "", address);
}

// Shows another view, with nothing of the last one but what concerns the whole page.
export function go(values: State): void {
  const { lang, theme } = state();
  const kept = new URLSearchParams({ ...(lang ? { lang } : {}), ...(theme ? { theme } : {}), ...values });
  history.pushState(null, "", `#${kept}`);
  dispatchEvent(new Event("popstate"));
}
