// A part of a view that can be folded; it stays as its user has left it.
import { kept } from "../state/kept";
import { el } from "./dom";

export function fold(key: string, title: Node | string, inside: (Node | string)[], isOpen: boolean, look = "group"): HTMLDetailsElement {
  const left = kept("folds", () => new Map<string, boolean>());
  const made = el("details", { class: look, open: left.get(key) ?? isOpen }, el("summary", {}, title), ...inside);
  made.ontoggle = () => {
    if (made.open !== isOpen || left.has(key)) left.set(key, made.open);
  };
  return made;
}
