// Figures one below the other: sign, value, unit and name.
import { el } from "./dom";
import { nameOf, shown, unitOf } from "./figures";

// A figure for the eye, with all its digits in its tip.
export const figure = (value: number | null | undefined, written: (value: number | null | undefined) => string = shown): HTMLElement =>
  el("span", { title: value == null ? null : String(value) }, written(value));

export type FigureLine = [sign: string, value: string, unit: string, name: string, whole: string];

export function figureLines(figures: Record<string, unknown> = {}): FigureLine[] {
  return Object.entries(figures)
    .filter(([, value]) => value === null || typeof value !== "object")
    .map(([key, value]) => [key, shown(value), unitOf(key), nameOf(key), String(value)]);
}

export function figureTable(caption: string, lines: FigureLine[]): HTMLElement {
  const body = el("tbody");
  for (const [sign, value, unit, name, whole] of lines) {
    body.append(
      el(
        "tr",
        {},
        el("th", { scope: "row" }, sign),
        el("td", { class: "num", title: whole }, value),
        el("td", { class: "unit" }, unit),
        el("td", { class: "name" }, name),
      ),
    );
  }
  return el("table", { class: "figures" }, el("caption", {}, caption), body);
}
