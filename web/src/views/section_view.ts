// A section's picture, cells, geometry and exact figures; of a table's row or of sizes.
import { ask, sentence, withWords, type Answer, type Files, type Line } from "../command/client";
import { kExamples } from "../form/examples";
import { button, copyButton, download, el, fault, picture } from "../parts/dom";
import { figureLines, figureTable, type FigureLine } from "../parts/figure_table";
import { signParts } from "../parts/figures";
import { oneStop } from "../parts/keyboard";
import { go, inOne } from "../state/address";
import { say } from "../state/language";

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

export function cellLines(section: SectionJson): FigureLine[] {
  return (section.columns ?? []).map((column, i) => {
    const [sign, unit] = signParts(column.sign);
    const cell = section.cells?.[i] ?? "";
    return [sign, cell, unit, column.title, cell];
  });
}

function asText(blocks: [string, FigureLine[]][]): string {
  return blocks
    .map(([caption, lines]) => [caption, ...lines.map(([sign, , unit, name, whole]) => [sign, whole, unit, name].join("\t"))].join("\n"))
    .join("\n\n");
}

// What leads on from a section: the example's member with it, and the choice among its table's rows.
export function onward(section: Record<string, unknown>): HTMLElement[] {
  const { id: _, edges: __, ...example } = kExamples.member;
  const check = () => go({ view: "members", case: JSON.stringify({ ...example, section }) });
  const table = section["table"];
  return [button(say("按构件验算", "Check as a member"), check),
    ...(typeof table === "string" ? [button(say("从此表选择", "Choose from this table"), () => go({ view: "choose", tables: inOne([table], ",") }))] : [])];
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
    el("div", { class: "beside-picture" }, el("div", { class: "blocks" }, ...blocks.map(([caption, lines]) => figureTable(caption, lines))), picture(answer.files["picture.svg"], title)),
  );
}
