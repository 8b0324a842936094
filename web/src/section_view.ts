// A section's picture, cells, geometry and exact figures; of a table's row or of sizes.
import member from "../../examples/member.json";
import { go } from "./address";
import { ask, sentence, withWords, type Answer, type Files, type Line } from "./client";
import { button, copyButton, download, el, fault, picture } from "./dom";
import { nameOf, shown, signParts, unitOf } from "./figures";
import { oneStop } from "./keyboard";
import { say } from "./language";

type Figures = Record<string, unknown>;

export interface SectionJson {
  table?: string;
  no?: string;
  name?: string;
  columns?: { sign: string; title: string }[];
  cells?: string[];
  geometry?: Figures;
  properties?: Figures;
  exact?: Figures;
  accurate?: boolean;
}

export type FigureLine = [sign: string, value: string, unit: string, name: string, whole: string];

export function figureLines(figures: Figures = {}): FigureLine[] {
  return Object.entries(figures)
    .filter(([, value]) => value === null || typeof value !== "object")
    .map(([key, value]) => [key, shown(value), unitOf(key), nameOf(key), String(value)]);
}

export function cellLines(section: SectionJson): FigureLine[] {
  return (section.columns ?? []).map((column, i) => {
    const [sign, unit] = signParts(column.sign);
    const cell = section.cells?.[i] ?? "";
    return [sign, cell, unit, column.title, cell];
  });
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

function asText(blocks: [string, FigureLine[]][]): string {
  return blocks
    .map(([caption, lines]) => [caption, ...lines.map(([sign, , unit, name, whole]) => [sign, whole, unit, name].join("\t"))].join("\n"))
    .join("\n\n");
}

// What leads on from a section: the example's member with it, and the choice among its table's rows.
export function onward(section: Record<string, unknown>): HTMLElement[] {
  const { id: _, edges: __, ...example } = member;
  const check = () => go({ view: "members", case: JSON.stringify({ ...example, section }) });
  const table = section["table"];
  return [button(say("按构件验算", "Check as a member"), check),
    ...(typeof table === "string" ? [button(say("从此表选择", "Choose from this table"), () => go({ view: "choose", tables: table }))] : [])];
}

// `forms`: the command lines that write the section as a file, by the option that names it; `files` are
// what they read.
export function sectionView(title: string, answer: Answer, file = title, forms: Record<string, Line> = {}, files: Files = {}, onward: HTMLElement[] = []): HTMLElement {
  if (answer.status !== 0) return fault(sentence(answer));
  const section = JSON.parse(answer.out) as SectionJson;
  const blocks: [string, FigureLine[]][] = [];
  if (section.cells) blocks.push([say("表中数据", "As printed in the table"), cellLines(section)]);
  if (section.properties) blocks.push([say("按公式", "By the style's formulas"), figureLines(section.properties)]);
  if (section.geometry) blocks.push([say("几何", "Geometry"), figureLines(section.geometry)]);
  if (section.exact) blocks.push([say("精确值（按外轮廓）", "Exact, from the outline"), figureLines(section.exact)]);
  const bare = file.replace(/[\\/:*?"<>|]/g, "_");
  const trouble = fault("");
  const save = async (form: string, line: Line) => {
    const name = `section.${form}`;
    const written = await ask(withWords(line, `--${form}`, name), files);
    trouble.textContent = written.status === 0 ? "" : sentence(written);
    if (written.files[name]) download(`${bare}.${form}`, written.files[name]);
  };
  const saves = Object.entries(forms).map(([form, line]) =>
    button(form.toUpperCase(), () => void save(form, line), { title: say("保存文件", "save as a file") }));
  return el(
    "article",
    { class: "section", "aria-label": title },
    el("h2", {}, title),
    oneStop(el("div", { class: "tools" }, copyButton(say("复制", "Copy"), () => asText(blocks)), ...saves, ...onward)),
    trouble,
    section.accurate === false && el("p", { class: "warn" }, say("精确值的误差估计偏大。", "The error estimate of the exact figures is large.")),
    el("div", { class: "beside-picture" }, el("div", {}, ...blocks.map(([caption, lines]) => figureTable(caption, lines))), picture(answer.files["picture.svg"], title)),
  );
}
