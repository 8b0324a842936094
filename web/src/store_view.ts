// The own store, kept in this browser: its tables, imports and exports.
import { go } from "./address";
import { ask, forgetOwnStore, sentence, told, type Answer, type Files } from "./client";
import { csvText } from "./csv";
import { bytesOf, button, download, dropPlace, el, fault, field, select } from "./dom";
import { say } from "./language";
import { tables } from "./sections";
import { sheetsOf, workbook, type Sheet } from "./workbook";
import { zip } from "./zip";

// A workbook's sheets as CSV files, each named for its table; a line of Chinese titles above the
// signs, as exports have it, is left out.
async function csvOfSheets(bytes: Uint8Array): Promise<[table: string, text: string][]> {
  return (await sheetsOf(bytes)).map(([name, rows]) => {
    const titled = rows[1]?.some((cell) => cell === "No." || /\(.+\)$/.test(cell)) ?? false;
    return [name, csvText(titled ? rows.slice(1) : rows)];
  });
}

async function imported(file: File, table: string, overwrite: boolean): Promise<Answer[]> {
  const more = overwrite ? ["--overwrite"] : [];
  const bytes = await bytesOf(file);
  const bring = (name: string, files: Files, into: string) => ask(["store", "import", name, ...(into ? ["--table", into] : []), ...more], files);
  if (file.name.toLowerCase().endsWith(".xlsx")) {
    let sheets: [string, string][];
    try {
      sheets = await csvOfSheets(bytes);
    } catch {
      return [{ status: 2, out: "", err: say(`${file.name}: 不是工作簿（.xlsx）`, `${file.name}: is no workbook (.xlsx)`), files: {} }];
    }
    const answers: Answer[] = [];
    for (const [name, text] of sheets) answers.push(await bring("sheet.csv", { "sheet.csv": text }, table || name));
    return answers;
  }
  return [await bring(file.name, { [file.name]: bytes }, table)];
}

export async function storeView(place: HTMLElement): Promise<void> {
  // Where the store is not read, it is said so, and what mends it stays at hand.
  let trouble = "";
  const read = () => tables().catch((error: Error) => ((trouble = error.message), []));
  let list = await read();
  const note = el("div", { role: "status", class: "log" });
  const tell = (answer: Answer, file = "") => {
    const good = answer.status === 0;
    note.append(el("p", { class: good ? "note" : "fault", role: good ? null : "alert" }, (good ? answer.out.trim() : [answer.out.trim(), sentence(answer, file)].filter(Boolean).join(" · ")) || "✓"));
  };
  const into = select([["", say("按文件", "as the file says")], ...list.map((table): [string, string] => [table.name, table.name])], "", () => {});
  const over = el("input", { type: "checkbox" });
  const taken = async (files: File[]) => {
    note.replaceChildren();
    for (const file of files) for (const answer of await imported(file, into.value, over.checked)) tell(answer);
    await listTables();
  };
  const filled = () => list.filter((table) => table.rows > 0).map((table) => table.name);
  const choices = () => [["", say("全部表", "all tables")], ...filled().map((name) => [name, name])] as [string, string][];
  let which = select(choices(), "", () => {});
  const exported = (form: string) => async () => {
    note.replaceChildren();
    const name = `store.${form}`;
    if (form === "xlsx") {
      tell(await (which.value ? exportWorkbook(`${which.value}.xlsx`, [which.value]) : exportWorkbook(name, filled())));
      return;
    }
    if (form === "csv" && !which.value) {
      tell(await exportTexts("store.zip", filled()));
      return;
    }
    const answer = await ask(["store", "export", ...(which.value ? [which.value] : []), "--to", name]);
    for (const [made, bytes] of Object.entries(answer.files)) download(which.value ? `${which.value}.${form}` : made, bytes);
    tell(answer);
  };
  const forms = ["KDB", "csv", "xlsx"].map((form) => button(`.${form}`, () => void exported(form)()));
  const held = el("div");
  const listTables = async () => {
    trouble = "";
    list = await read();
    const asked = select(choices(), filled().includes(which.value) ? which.value : "", () => {});
    asked.id = which.id;
    which.replaceWith(asked);
    which = asked;
    const now = list.filter((table) => table.source !== "rolled");
    held.replaceChildren(el("h2", {}, say("自定义截面的表", "Tables of own sections")), fault(trouble), el("ul", { class: "tables" }, ...now.map((table) =>
      el("li", {}, button(`${table.name} (${table.rows})`, () => go({ view: "sections", table: table.name }), { class: "quiet" })))));
  };
  const forget = button(say("删除自己的库", "Delete the own store"), () => {
    if (!confirm(say("删除浏览器中自己的库，回到随页的库？", "Delete the own store of this browser and go back to the shipped catalogue?"))) return;
    void forgetOwnStore().then((answer) => {
      note.replaceChildren();
      tell(answer);
      return listTables();
    });
  }, { class: "danger" });
  place.replaceChildren(el("div", { class: "form wide" },
    el("h1", {}, say("自己的库", "Own store")),
    el("p", { class: "note" }, say("保存在此浏览器中，不离开本机。请不时导出为 .KDB。", "Kept in this browser; nothing leaves the machine. Export it as .KDB from time to time.")),
    el("h2", {}, say("导入", "Import")), field(say("目标表", "Into table"), into), el("label", { class: "check" }, over, say(" 覆盖已有的行", " replace rows that are there")),
    dropPlace(say(".KDB、.kvb、.csv 或 .xlsx 文件", ".KDB, .kvb, .csv or .xlsx files"), ".kdb,.kvb,.csv,.xlsx", (files) => void taken(files)),
    el("h2", {}, say("导出", "Export")), field(say("表", "Table"), which), el("div", { class: "tools" }, ...forms), note),
    el("div", { class: "form wide" }, held, el("div", { class: "tools" }, forget)));
  await listTables();
}

async function sheetOf(table: string): Promise<Sheet> {
  const { columns, rows } = await told<{ columns: { sign: string; name: string; type: string }[]; rows: { cells: string[] }[] }>(["rows", table]);
  const heads = [columns.map((column) => column.name), columns.map((column) => column.sign)];
  const numeric = columns.map((column) => column.type !== "text" && column.type !== "char");
  return { name: table, rows: [...heads, ...rows.map((row) => row.cells)], numeric, heads: 2 };
}

// Whole tables as CSV files, of which each holds one table, in one archive.
async function exportTexts(name: string, tables: string[]): Promise<Answer> {
  const texts: [string, Uint8Array][] = [];
  for (const table of tables) {
    const answer = await ask(["store", "export", table, "--to", "table.csv"]);
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
