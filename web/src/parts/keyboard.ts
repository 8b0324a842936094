// What makes the page quick by keys: one stop of the tab key for a group of like things, ways past what is
// long, and the focus where it was when what is around it is drawn anew.
import { say } from "../state/language";
import { button } from "./dom";

const kSteps: Record<string, number> = { ArrowDown: 1, ArrowRight: 1, ArrowUp: -1, ArrowLeft: -1, Home: -Infinity, End: Infinity };

// Within the group the arrows, Home and End move; the tab key stops at what was last used, at first at what is
// current.
export function oneStop<E extends HTMLElement>(group: E, of = "a, button"): E {
  const all = [...group.querySelectorAll<HTMLElement>(of)];
  const stopAt = (stop: HTMLElement | undefined) => all.forEach((each) => (each.tabIndex = each === stop ? 0 : -1));
  stopAt(all.find((each) => each.matches("[aria-current], :checked")) ?? all[0]);
  group.addEventListener("focusin", ({ target }) => {
    if (all.includes(target as HTMLElement)) stopAt(target as HTMLElement);
  });
  group.addEventListener("keydown", (event) => {
    const [at, step] = [all.indexOf(event.target as HTMLElement), kSteps[event.key]];
    if (at < 0 || step === undefined) return;
    event.preventDefault();
    event.stopPropagation();
    all[Math.min(Math.max(at + step, 0), all.length - 1)]!.focus();
  });
  return group;
}

// A place that the head of the page has a way to.
export function reachable<E extends HTMLElement>(place: E, name: string): E {
  if (!place.hasAttribute("tabindex")) place.tabIndex = -1;
  place.dataset["reach"] = name;
  return place;
}

// The ways to the places of a view, which are seen when the tab key comes to them.
export function waysIn(main: HTMLElement): HTMLElement[] {
  const names = [...main.querySelectorAll<HTMLElement>("[data-reach]")].map((place) => place.dataset["reach"]!);
  return names.map((name) => button(say(`跳到${name}`, `Skip to ${name}`), () => {
    const place = main.querySelector<HTMLElement>(`[data-reach="${name}"]`);
    place?.scrollIntoView({ block: "nearest" });
    place?.focus();
  }));
}

// What an element is called by who uses it; one whose name changes with what it does has a key.
function nameOf(element: Element | null): string {
  if (!(element instanceof HTMLElement) || element === document.body) return "";
  const label = (element as HTMLInputElement).labels?.[0]?.textContent;
  return `${element.tagName} ${element.dataset["key"] ?? element.getAttribute("aria-label") ?? label ?? element.textContent}`;
}

// Draws anew, and gives the focus back to what is called as what had it; a field goes on where its user was.
export async function keepFocus(draw: () => unknown): Promise<void> {
  const before = document.activeElement;
  const name = nameOf(before);
  await draw();
  if (name === "" || document.activeElement !== document.body) return;
  const again = [...document.querySelectorAll<HTMLElement>("a, button, input, select, summary")].find((each) => nameOf(each) === name);
  again?.focus();
  if (before instanceof HTMLInputElement && before.selectionStart !== null) (again as HTMLInputElement | undefined)?.setSelectionRange(before.selectionStart, before.selectionEnd);
}
