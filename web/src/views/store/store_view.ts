// The own store, kept in this browser: its tables, imports and exports.
import { isNumeric, keyOf, rowsOf, styles as readStyles, tables, type StyleJson, type TableJson } from "../../command/catalogue";
import { ask, forgetOwnStore, isStoreKept, keepsStore, lineOf, sentence, type Answer, type Files } from "../../command/client";
import { csvText } from "../../formats/csv";
import { OddCell, sheetsOf, workbook, type Sheet } from "../../formats/workbook";
import { unzipped, zip } from "../../formats/zip";
import { bytesOf, button, download, dropPlace, el, fault, field, select } from "../../parts/dom";
import { oneStop, reachable } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { go } from "../../state/address";
import { kept } from "../../state/kept";
import { say } from "../../state/language";

// A workbook's sheets as CSV files, each named for its table; a line of Chinese titles above the
// signs, as exports have it, is left out.
async function csvOfSheets(bytes: Uint8Array): Promise<[table: string, text: string][]> {
  return (await sheetsOf(bytes)).map(([name, rows]) => {
    const titled = !rows[0]?.includes("No.") && (rows[1]?.includes("No.") ?? false); // the sign that every table has
    return [name, csvText(titled ? rows.slice(1) : rows)];
  });
}

// The CSV files of an archive by their names, without what some systems add to it; throws for what else it holds, and
// where two have one name.
async function csvOfArchive(bytes: Uint8Array): Promise<Files> {
  const files: Files = {};
  for (const [path, data] of await unzipped(bytes)) {
    const name = path.split("/").at(-1)!;
    if (name.startsWith(".")) continue;
    if (!name.toLowerCase().endsWith(".csv") || name in files) throw new Error(path);
    files[name] = data;
  }
  if (Object.keys(files).length === 0) throw new Error();
  return files;
}

// What a file brings in, as files that the command reads.
async function filesIn(file: File, bytes: Uint8Array): Promise<Files> {
  const ending = file.name.toLowerCase().split(".").at(-1);
  if (ending === "xlsx") return Object.fromEntries((await csvOfSheets(bytes)).map(([name, text]) => [`${name}.csv`, text]));
  return ending === "zip" ? csvOfArchive(bytes) : { [file.name]: bytes };
}

// The sheets of a workbook, and the files of an archive, come in by one command: in one save.
async function imported(file: File, table: string, overwrite: boolean): Promise<Answer> {
  const words = ["store", "import", ...(table ? [`--table=${table}`] : []), ...(overwrite ? ["--overwrite"] : [])];
  const refused = (err: string): Answer => ({ status: 2, out: "", err, files: {} });
  let bytes: Uint8Array;
  try {
    bytes = await bytesOf(file);
  } catch (unread) {
    return refused((unread as Error).message);
  }
  let files: Files;
  try {
    files = await filesIn(file, bytes);
  } catch (fault) {
    if (fault instanceof OddCell) return refused(`${file.name}: ${oddCell(fault)}`);
    const why = file.name.toLowerCase().endsWith(".zip") ? say("应为 .csv 文件的压缩包（.zip），每表一个", "right would be an archive (.zip) of .csv files, one for each table")
      : say("不是工作簿（.xlsx）", "is no workbook (.xlsx)");
    return refused(`${file.name}: ${why}`);
  }
  const answer = await ask(lineOf(words, ...Object.keys(files)), files);
  if (!file.name.toLowerCase().endsWith(".xlsx")) return answer;
  const bySheets = (text: string) => Object.keys(files).reduce((told, name) => told.replaceAll(name, `${file.name} [${name.slice(0, -4)}]`), text);
  return { ...answer, out: bySheets(answer.out), err: bySheets(answer.err) };
}

function oddCell({ sheet, cell, holds }: OddCell): string {
  const [zh, en] = { date: ["日期", "a date"], logical: ["逻辑值", "a logical value"], error: ["错误值", "an error"] }[holds] as [string, string];
  return say(`[${sheet}] ${cell}：是${zh}；应为数值或文字（设为文本格式后重新键入）`, `[${sheet}] ${cell}: is ${en}; right would be a number or a text (format the cell as text and type it anew)`);
}

const kOwn = "own"; // in the list of tables to export: those of own sections

// The own rows of a table, each to be seen, changed and deleted.
async function ownRows(table: TableJson, styles: StyleJson[], changed: (answer: Answer) => void): Promise<HTMLElement | null> {
  const { columns, rows } = await rowsOf(table.name);
  const key = keyOf(columns);
  const style = styles.find((each) => each.table === table.name);
  const cell = (row: string[], sign: string) => row[columns.findIndex((column) => column.sign === sign)] ?? "";
  const lines = rows.filter(({ state }) => state === 0).map(({ cells }) => {
    const no = cells[key]!;
    const sizes = style?.sizes.map(({ sign }) => cell(cells, sign)).join(",");
    const remove = async () => {
      if (confirm(say(`删除“${no}”？`, `Delete "${no}"?`))) changed(await ask(lineOf(["store", "delete"], table.name, no)));
    };
    const named = (label: string) => ({ class: "quiet", "aria-label": `${label} ${no}` });
    return el("tr", {},
      el("th", { scope: "row" }, button(no, () => go({ view: "sections", table: table.name, no }), { class: "quiet" })),
      el("td", {}, (sizes ?? "").replaceAll(",", " × ")),
      el("td", {}, style && button(say("修改", "Change"), () => go({ view: "own", style: style.alias, sizes: sizes!, base: `${cell(cells, "x(mm)")},${cell(cells, "y(mm)")}`, name: no }), named(say("修改", "Change")))),
      el("td", {}, button(say("删除", "Delete"), () => void remove(), named(say("删除", "Delete")))));
  });
  if (lines.length === 0) return null;
  return oneStop(el("table", { class: "figures rows" }, el("caption", {}, table.name), el("tbody", {}, ...lines)));
}

export async function storeView(place: HTMLElement): Promise<void> {
  const styles = await readStyles().catch(() => []);
  const note = kept("log", () => el("div", { role: "status", class: "log" }));
  const wishes = kept("wishes", () => ({ into: "", over: false, which: kOwn }));
  let list: TableJson[] = [];
  const tell = (answer: Answer, file = "") => {
    const good = answer.status === 0;
    note.append(el("p", { class: good ? "note" : "fault", role: good ? null : "alert" }, (good ? answer.out.trim() : [answer.out.trim(), sentence(answer, file)].filter(Boolean).join(" · ")) || "✓"));
  };
  const into = select([], "", (table) => (wishes.into = table));
  const over = el("input", { type: "checkbox", checked: wishes.over, onchange: () => (wishes.over = over.checked) });
  const taken = async (files: File[]) => {
    const [table, overwrite] = [into.value, over.checked];
    note.replaceChildren();
    for (const file of files) tell(await imported(file, table, overwrite));
    await store.ask();
  };
  const filled = () => list.filter((table) => table.rows > 0);
  const own = () => filled().filter((table) => table.source !== "rolled");
  const names = (of: TableJson[]) => of.map((table) => table.name);
  const which = select([], "", (table) => (wishes.which = table));
  const offer = (choice: HTMLSelectElement, wish: string, first: [value: string, text: string][], tables: string[]) => {
    choice.replaceChildren(...first.map(([value, text]) => new Option(text, value)), ...tables.map((table) => new Option(table)));
    choice.value = [...choice.options].some(({ value }) => value === wish) ? wish : "";
  };
  const exported = (form: string) => async () => {
    note.replaceChildren();
    const wanted = which.value === kOwn ? names(own()) : which.value ? [which.value] : names(filled());
    const name = wanted.length === 1 ? wanted[0]! : "store";
    if (form === "xlsx") tell(await exportWorkbook(`${name}.xlsx`, wanted));
    else if (form === "csv" && wanted.length > 1) tell(await exportTexts(`${name}.zip`, wanted));
    else {
      const answer = await ask(lineOf(["store", "export", "--to", `store.${form}`], ...(which.value ? wanted : [])));
      for (const bytes of Object.values(answer.files)) download(`${name}.${form}`, bytes);
      tell(answer);
    }
  };
  const forms = ["KDB", "csv", "xlsx"].map((form) => button(`.${form}`, () => void exported(form)()));
  const changed = (answer: Answer) => {
    note.replaceChildren();
    tell(answer);
    void store.ask().then(() => mine.focus());
  };
  // What is kept, asked again with every save, whoever saves; the controls stay as they are.
  const held = el("div");
  const store = new Question(held, async () => {
    let trouble = ""; // where the store is not read, it is said so, and what mends it stays at hand
    list = await tables().catch((error: Error) => ((trouble = error.message), []));
    offer(into, wishes.into, [["", say("按文件", "as the file says")]], names(list));
    offer(which, wishes.which, [[kOwn, say("自定义截面的各表", "the tables of own sections")], ["", say("全部表", "all tables")]], names(filled()));
    const isKept = await isStoreKept().catch(() => true);
    const rows = isKept && !trouble ? await Promise.all(own().map((table) => ownRows(table, styles, changed))) : [];
    const none = say("还没有保存任何截面；各表只有随页的示例。", "Nothing is kept yet: the tables hold the page's own examples.");
    return () => {
      held.replaceChildren(el("h2", {}, say("自己的截面", "Own sections")), fault(trouble), ...(isKept ? rows.filter((each) => each !== null) : [el("p", { class: "note" }, none)]));
      forget.hidden = !isKept;
    };
  });
  const forget = button(say("删除自己的库", "Delete the own store"), () => {
    if (!confirm(say("删除浏览器中自己的库，回到随页的库？", "Delete the own store of this browser and go back to the shipped catalogue?"))) return;
    void forgetOwnStore().then(changed);
  }, { class: "danger" });
  const where = keepsStore()
    ? el("p", { class: "note" }, say("保存在此浏览器中，不离开本机。请不时导出为 .KDB。", "Kept in this browser; nothing leaves the machine. Export it as .KDB from time to time."))
    : el("p", { class: "warn" }, say("此浏览器不允许本页保存数据：存入和导入都不会留下。", "This browser does not let the page keep data: nothing can be kept or imported."));
  const mine = reachable(el("div", { class: "form wide" }, held, el("div", { class: "tools" }, forget)), say("自己的截面", "own sections"));
  place.replaceChildren(el("div", { class: "form wide" },
    el("h1", {}, say("自己的库", "Own store")), where,
    el("h2", {}, say("导入", "Import")), field(say("目标表", "Into table"), into), el("label", { class: "check" }, over, say(" 覆盖已有的行", " replace rows that are there")),
    dropPlace(say(".KDB、.kvb、.csv、.xlsx 或 .zip 文件", ".KDB, .kvb, .csv, .xlsx or .zip files"), ".kdb,.kvb,.csv,.xlsx,.zip", (files) => void taken(files), true),
    el("h2", {}, say("导出", "Export")), field(say("表", "Table"), which), oneStop(el("div", { class: "tools" }, ...forms)), note),
    mine);
  await store.ask();
}

async function sheetOf(table: string): Promise<Sheet> {
  const { columns, rows } = await rowsOf(table);
  const heads = [columns.map((column) => column.name), columns.map((column) => column.sign)];
  return { name: table, rows: [...heads, ...rows.map((row) => row.cells)], numeric: columns.map(isNumeric), heads: 2 };
}

// Whole tables as CSV files, of which each holds one table, in one archive.
async function exportTexts(name: string, tables: string[]): Promise<Answer> {
  const texts: [string, Uint8Array][] = [];
  for (const table of tables) {
    const answer = await ask(lineOf(["store", "export", "--to", "table.csv"], table));
    if (answer.status !== 0) return answer;
    texts.push([`${table}.csv`, answer.files["table.csv"]!]);
  }
  download(name, zip(texts));
  return { status: 0, out: say(`${name}：${texts.length} 个表，每表一个 CSV 文件`, `${name}: ${texts.length} tables, a CSV file for each`), err: "", files: {} };
}

// Whole tables as sheets of one workbook.
async function exportWorkbook(name: string, tables: string[]): Promise<Answer> {
  try {
    const sheets: Sheet[] = [];
    for (const table of tables) sheets.push(await sheetOf(table));
    download(name, workbook(...sheets));
    return { status: 0, out: name, err: "", files: {} };
  } catch (error) {
    return { status: 3, out: "", err: (error as Error).message, files: {} };
  }
}
