// Sections: the tables, the rows of one, and the section that is chosen; several beside each other.
import { isNumeric, keyOf, tables, type RowsJson, type TableJson } from "../../command/catalogue";
import { ask, lineOf, sentence, withWords, type Line } from "../../command/client";
import { csvText } from "../../formats/csv";
import { workbook } from "../../formats/workbook";
import { button, copyButton, download, el, fault, field, newId, select } from "../../parts/dom";
import { figureLines, type FigureLine } from "../../parts/figure_table";
import { bare, narrow, typedNumber } from "../../parts/figures";
import { Grid, type Column } from "../../parts/grid";
import { oneStop, reachable } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { change, go, inOne, parted, startView, state } from "../../state/address";
import { say } from "../../state/language";
import { cellLines, onward, sectionView, type SectionJson } from "../section_view";

const kFamilies: Record<string, string> = {
  "I and H": "工字形与 H 形", T: "T 形", Z: "Z 形", angle: "角钢", "angle pair": "组合角钢", box: "箱形与方管",
  channel: "槽形", "channel pair": "组合槽钢", round: "圆形与圆管", cross: "十字形", lattice: "格构柱", solid: "实心",
};

interface Family {
  source: string;
  title: string;
  tables: TableJson[];
}

// Rolled before own ones, of which those that hold rows.
function families(list: TableJson[]): Family[] {
  return [["rolled", say("型钢", "Rolled")], ["user-defined", say("自定义截面", "Own section")]].flatMap(([from, source]) => {
    const mine = list.filter((table) => table.source === from && (from === "rolled" || table.rows > 0));
    return [...new Set(mine.map((table) => table.family))].map((family) =>
      ({ source: source!, title: say(kFamilies[family] ?? family, family), tables: mine.filter((table) => table.family === family) }));
  });
}

const showTable = (table: string) => go({ view: "sections", table });

// The tables by their families: a list where the screen is wide, else a choice that takes one line.
function tree(list: TableJson[], chosen: string): HTMLElement {
  const nav = el("nav", { class: "families", "aria-label": say("截面表", "Tables") });
  const picker = select([], "", showTable);
  let source = "";
  for (const family of families(list)) {
    if (family.source !== source) nav.append(el("h2", {}, (source = family.source)));
    const items = family.tables.map(({ name, rows }) =>
      el("li", {}, el("a", { href: `#view=sections&table=${encodeURIComponent(name)}`, "aria-current": name === chosen ? "true" : null,
        onclick: (event: MouseEvent) => { event.preventDefault(); showTable(name); } }, name, el("span", { class: "count" }, ` ${rows}`))));
    nav.append(el("h3", {}, family.title), el("ul", {}, ...items));
    picker.append(el("optgroup", { label: `${source} · ${family.title}` },
      ...family.tables.map(({ name, rows }) => el("option", { value: name, selected: name === chosen }, `${name} (${rows})`))));
  }
  return el("div", { class: "tree" }, oneStop(nav), el("div", { class: "picker" }, field(say("截面表", "Table"), picker)));
}

const gapOf = () => bare(state()["gap"] ?? "");

// The filter of the state; an empty bound is none.
const range = () => parted(state()["range"] ?? "", "|") as [sign: string, least?: string, most?: string];

function matching(rows: string[][], columns: RowsJson["columns"], words: string[]): string[][] {
  const [sign, least = "", most = ""] = range();
  const at = columns.findIndex((column) => column.sign === sign);
  return rows.filter((row) => {
    const text = row.join("\u0000").toLowerCase();
    return words.every((word) => text.includes(word)) &&
      (at < 0 ? !sign : ((least === "" || Number(row[at]) >= typedNumber(least)) && (most === "" || Number(row[at]) <= typedNumber(most))));
  });
}

// The rows that are compared, each as one text of its table and number.
const compared = (): string[] => parted(state()["compare"] ?? "", ";").filter(Boolean);
const keepCompared = (rows: string[]) => change({ compare: rows.length > 0 ? inOne(rows, ";") : "" });
const numberOf = (row: string) => parted(row, "|")[1] ?? "";

// The rows beside one another, each as `line` asks for it.
async function comparison(rows: string[], line: (row: string) => Line, remove: (row: string) => void): Promise<HTMLElement[]> {
  const answers = await Promise.all(rows.map((row) => ask(line(row))));
  const lines = new Map<string, FigureLine[]>();
  answers.forEach((answer, i) => {
    if (answer.status !== 0) return;
    const section = JSON.parse(answer.out) as SectionJson;
    for (const line of [...cellLines(section), ...figureLines(section.exact).map(([sign, ...rest]) => [`${sign} *`, ...rest] as FigureLine)]) {
      const key = `${line[0]}\t${line[2]}`;
      if (!lines.has(key)) lines.set(key, []);
      lines.get(key)![i] = line;
    }
  });
  const head = el("tr", {}, el("th", { scope: "col" }, say("量", "figure")), el("th", { scope: "col" }, say("单位", "unit")));
  rows.forEach((row) => head.append(el("th", { scope: "col", class: "num" }, numberOf(row),
    button("×", () => remove(row), { class: "quiet", "aria-label": `${say("不再比较", "compare no longer")} ${numberOf(row)}` }))));
  const body = el("tbody");
  for (const [key, values] of lines) {
    const [sign, unit] = key.split("\t");
    body.append(el("tr", {}, el("th", { scope: "row" }, sign), el("td", { class: "unit" }, unit),
      ...rows.map((_, i) => el("td", { class: "num", title: values[i]?.[4] }, values[i]?.[1] ?? ""))));
  }
  const refused = answers.flatMap((answer, i) => (answer.status === 0 ? [] : [fault(`${numberOf(rows[i]!)}: ${sentence(answer)}`)]));
  return [el("h2", {}, say("比较", "Compared")), ...refused,
    el("div", { class: "scroll", tabindex: 0, role: "group", "aria-label": say("比较", "Compared") }, el("table", { class: "figures compare" }, el("thead", {}, oneStop(head)), body)),
    el("p", { class: "note" }, say("* 按外轮廓的精确值，mm；转角与间距同所示截面", "* exact, from the outline, mm; turned and with the gap as the section"))];
}

export async function sections(place: HTMLElement): Promise<void> {
  const isHere = startView();
  const list = await tables();
  if (!isHere()) return;
  const table = state()["table"] ?? list.find((each) => each.rows > 0)?.name ?? "";
  const left = tree(list, table);
  place.replaceChildren(left);
  const answer = await ask(lineOf(["rows", "--json"], table));
  if (!isHere()) return;
  if (answer.status !== 0) return place.append(fault(sentence(answer)));
  const { columns, rows } = JSON.parse(answer.out) as RowsJson;
  const all = rows.map((row) => row.cells);
  const key = keyOf(columns);
  const shown = el("div", { "aria-live": "polite" });
  const beside = el("div", { class: "beside" });
  const count = el("span", { class: "note", role: "status" });

  const isPair = (name: string) => list.find((each) => each.name === name)?.family.includes("pair") ?? false;
  const chosen = () => state()["no"] ?? all[0]?.[key];
  const drawn = (of: string, no: string) => lineOf(["show", ...(state()["turn"] ? [`--turn=${state()["turn"]}`] : []), ...(isPair(of) && gapOf() ? [`--gap=${gapOf()}`] : [])], of, no);
  const section = new Question(shown, async () => {
    const [no, gap] = [chosen()!, typedNumber(gapOf())];
    const turned = drawn(table, no);
    const answer = await ask(withWords(turned, "--json", "--svg", "picture.svg"));
    return () => shown.replaceChildren(sectionView(`${table} ${no}`, answer, no, { svg: turned, dxf: turned, ifc: turned }, {}, onward({ table, no, ...(isPair(table) && gap ? { gap } : {}) })));
  });
  const compare = new Question(beside, async () => {
    const line = (row: string) => withWords(drawn(parted(row, "|")[0]!, numberOf(row)), "--json");
    const made = await comparison(compared(), line, (row) => { keepCompared(compared().filter((other) => other !== row)); grid.draw(); askCompared(); });
    return () => beside.replaceChildren(...made);
  });
  const askCompared = () => {
    if (compared().length > 0) return void compare.ask();
    compare.drop();
    beside.replaceChildren();
  };
  const askBoth = () => {
    void section.ask();
    askCompared();
  };
  const turn = select(["0", "90", "180", "270"].map((each) => [each, `${each}°`]), state()["turn"] ?? "0", (turn) => { change({ turn: turn === "0" ? "" : turn }); askBoth(); });
  const gap = el("input", { type: "text", inputmode: "decimal", value: state()["gap"] ?? "", placeholder: "0", oninput: () => { change({ gap: gap.value }); askBoth(); } });
  const detail = reachable(el("div", { class: "detail" }, shown, chosen() && field(say("转角", "Turned by"), turn),
    isPair(table) && field(say("两肢间距", "Gap between the parts"), gap, el("span", { class: "unit" }, "mm"))), say("截面", "the section"));
  // Its command runs while the rows are drawn.
  place.append(detail);
  const detailed = chosen() ? section.ask() : null;
  const marked = (row: string[]) => inOne([table, row[key]!], "|");
  const grid: Grid = new Grid({
    label: table,
    columns: columns.map<Column>((column) => ({ name: column.sign, title: column.title, numeric: isNumeric(column) })),
    rows: all,
    sort: state()["sort"] ?? "",
    sorted: (sort) => change({ sort }),
    isChosen: (row) => row[key] === state()["no"],
    chosen: (row) => { change({ no: row[key]! }); void section.ask(); },
    marked: { has: (row) => compared().includes(marked(row)), toggle: (row) => {
      const [each, rows] = [marked(row), compared()];
      keepCompared(rows.includes(each) ? rows.filter((other) => other !== each) : [...rows, each]);
      askCompared();
    } },
  });
  const words = () => narrow(state()["q"] ?? "").toLowerCase().split(/\s+/).filter(Boolean);
  const filter = () => {
    const seen = matching(all, columns, words());
    grid.show(seen);
    count.textContent = say(`${seen.length} / ${all.length} 行`, `${seen.length} of ${all.length} rows`);
  };
  const search = el("input", { type: "search", value: state()["q"] ?? "", oninput: () => { change({ q: search.value }); filter(); } });
  const heads = () => [columns.map((column) => column.name), columns.map((column) => column.sign)];
  const numeric = columns.map(isNumeric);
  const tools = el("div", { class: "tools" },
    field(say("在所有列中查找", "Search all columns"), search),
    rangeFilter(columns.filter(isNumeric).map((column) => column.sign), filter),
    oneStop(el("span", { class: "tools" },
    copyButton(say("复制", "Copy"), () => [columns.map((column) => column.sign), ...grid.shown].map((row) => row.join("\t")).join("\n")),
    button("CSV", () => download(`${table}.csv`, "\ufeff" + csvText([columns.map((column) => column.sign), ...grid.shown]))),
    button("XLSX", () => download(`${table}.xlsx`, workbook({ name: table, rows: [...heads(), ...grid.shown], numeric, heads: 2 }))))),
    count);
  place.replaceChildren(left, el("div", { class: "middle" }, el("h1", {}, table), tools, grid.element, beside), detail);
  reachable(grid.element, say("各行", "the rows"));
  filter();
  grid.reveal();
  askCompared();
  await detailed;
}

// A range that a column's numbers must lie in, kept in the state.
function rangeFilter(signs: string[], changed: () => void): HTMLElement {
  const [sign, least = "", most = ""] = range();
  const column = select([["", "–"], ...signs.map((each): [string, string] => [each, each])], sign, () => keep());
  const note = el("p", { class: "fault", role: "alert", id: newId() });
  const low = el("input", { type: "text", inputmode: "decimal", "aria-describedby": note.id, value: least, class: "short", "aria-label": say("不小于", "at least"), oninput: () => keep() });
  const high = el("input", { type: "text", inputmode: "decimal", "aria-describedby": note.id, value: most, class: "short", "aria-label": say("不大于", "at most"), oninput: () => keep() });
  const judge = () => {
    const bounds = [low, high].map((input) => (input.value.trim() === "" ? null : typedNumber(input.value)));
    [low, high].forEach((input, i) => input.setAttribute("aria-invalid", String(Number.isNaN(bounds[i]))));
    const bad = [low, high].find((_, i) => Number.isNaN(bounds[i]));
    note.textContent = column.value && !signs.includes(column.value) ? say(`没有数值列“${column.value}”`, `there is no column "${column.value}" of numbers`) : bad ? say(`“${bad.value}”不是数值，应如 2.5`, `"${bad.value}" is no number; right would be one such as 2.5`)
      : bounds[0] != null && bounds[1] != null && bounds[0]! > bounds[1]! ? say("下限大于上限", "the least is above the most") : "";
  };
  const keep = () => {
    judge();
    const values = [column.value, low.value, high.value];
    change({ range: values.some(Boolean) ? inOne(values, "|") : "" });
    changed();
  };
  const made = field(say("数值范围", "Number range"), column);
  made.append(low, "–", high, note);
  judge();
  made.classList.add("range");
  return made;
}
