// Workbooks (.xlsx): a zip archive of a few XML files.
import { unzipped, zip } from "./zip";

const kRelations = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
const kSheet = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
const kPackage = "http://schemas.openxmlformats.org/package/2006";
const kHead = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n';

const escaped = (text: string) =>
  text.replace(/[\u0000-\u0008\u000b\u000c\u000e-\u001f]/g, "").replaceAll("&", "&amp;").replaceAll("<", "&lt;").replaceAll('"', "&quot;");

function cellXml(text: string, numeric: boolean): string {
  if (numeric && text.trim() !== "" && Number.isFinite(Number(text))) return `<c><v>${text.trim()}</v></c>`; // as it is written: an import compares texts
  return `<c t="inlineStr"><is><t xml:space="preserve">${escaped(text)}</t></is></c>`;
}

// `numeric` tells of each column whether its cells are numbers; the first `heads` rows are headings.
export interface Sheet {
  name: string;
  rows: string[][];
  numeric: boolean[];
  heads: number;
}

function sheetXml({ rows, numeric, heads }: Sheet): string {
  const lines = rows.map(
    (row, i) => `<row>${row.map((cell, col) => cellXml(cell, i >= heads && numeric[col] === true)).join("")}</row>`,
  );
  return `${kHead}<worksheet xmlns="${kSheet}"><sheetViews><sheetView workbookViewId="0"><pane ySplit="${heads}" topLeftCell="A${heads + 1}" activePane="bottomLeft" state="frozen"/></sheetView></sheetViews><sheetData>${lines.join("")}</sheetData></worksheet>`;
}

// Excel takes no brackets and the like in a sheet's name, and none twice; brackets go out as wide ones.
function sheetNames(sheets: Sheet[]): string[] {
  const taken = new Set<string>();
  return sheets.map(({ name }) => {
    const bare = name.replaceAll("[", "［").replaceAll("]", "］").replace(/[:*?/\\]/g, "_").slice(0, 28) || "1";
    let free = bare;
    for (let i = 2; taken.has(free); ++i) free = `${bare} ${i}`;
    taken.add(free);
    return free;
  });
}

export function workbook(...sheets: Sheet[]): Uint8Array {
  const type = "application/vnd.openxmlformats-officedocument.spreadsheetml";
  const names = sheetNames(sheets);
  const each = (text: (i: number) => string) => sheets.map((_, i) => text(i + 1)).join("");
  return zip([
    ["[Content_Types].xml", `${kHead}<Types xmlns="${kPackage}/content-types"><Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/><Override PartName="/xl/workbook.xml" ContentType="${type}.sheet.main+xml"/>${each((i) => `<Override PartName="/xl/worksheets/sheet${i}.xml" ContentType="${type}.worksheet+xml"/>`)}</Types>`],
    ["_rels/.rels", `${kHead}<Relationships xmlns="${kPackage}/relationships"><Relationship Id="r1" Type="${kRelations}/officeDocument" Target="xl/workbook.xml"/></Relationships>`],
    ["xl/workbook.xml", `${kHead}<workbook xmlns="${kSheet}" xmlns:r="${kRelations}"><sheets>${each((i) => `<sheet name="${escaped(names[i - 1]!)}" sheetId="${i}" r:id="r${i}"/>`)}</sheets></workbook>`],
    ["xl/_rels/workbook.xml.rels", `${kHead}<Relationships xmlns="${kPackage}/relationships">${each((i) => `<Relationship Id="r${i}" Type="${kRelations}/worksheet" Target="worksheets/sheet${i}.xml"/>`)}</Relationships>`],
    ...sheets.map((sheet, i): [string, string] => [`xl/worksheets/sheet${i + 1}.xml`, sheetXml(sheet)]),
  ]);
}

const xml = (text: string) => new DOMParser().parseFromString(text, "application/xml");
const tags = (within: Document | Element, name: string) => [...within.getElementsByTagNameNS("*", name)]; // whatever prefix a writer gives
const textIn = (element: Element) => tags(element, "t").map((t) => t.textContent).join("");

function columnOf(reference: string | null, next: number): number {
  const letters = /^[A-Z]{1,3}/.exec(reference ?? "")?.[0]; // XFD is the last column
  return letters ? [...letters].reduce((sum, ch) => sum * 26 + ch.charCodeAt(0) - 64, 0) - 1 : next;
}

// Which of the workbook's cell styles show a number as a date or a time.
function datesOf(styles: Document): boolean[] {
  const forms = new Map(tags(styles, "numFmt").map((form) => [form.getAttribute("numFmtId"), form.getAttribute("formatCode") ?? ""]));
  const isDate = (id: string) => /^(1[4-9]|2[0-2]|2[7-9]|3[0-6]|4[5-7]|5[0-8])$/.test(id) || /[dmyhs]/i.test((forms.get(id) ?? "").replace(/"[^"]*"|\\.|\[[^\]]*\]|General/gi, ""));
  return tags(styles, "cellXfs").flatMap((all) => tags(all, "xf")).map((style) => isDate(style.getAttribute("numFmtId") ?? ""));
}

// A cell whose text no sheet shows.
export class OddCell extends Error {
  constructor(readonly sheet: string, readonly cell: string, readonly holds: "date" | "logical" | "error") {
    super(cell);
  }
}

// The sheets of a workbook by their names, cells as text, without sheets and columns that are empty; throws for what is
// none. A chart has no sheet of cells.
export async function sheetsOf(bytes: Uint8Array): Promise<[name: string, rows: string[][]][]> {
  const texts = new TextDecoder();
  const parts = new Map([...(await unzipped(bytes))].map(([name, data]) => [name, texts.decode(data)]));
  const shared = tags(xml(parts.get("xl/sharedStrings.xml") ?? "<x/>"), "si").map(textIn);
  const dates = datesOf(xml(parts.get("xl/styles.xml") ?? "<x/>"));
  const targets = new Map(
    tags(xml(parts.get("xl/_rels/workbook.xml.rels")!), "Relationship").filter((each) => each.getAttribute("Type")!.endsWith("/worksheet")).map((each) => [
      each.getAttribute("Id"),
      each.getAttribute("Target")!.replace(/^\/xl\//, ""),
    ]),
  );
  return tags(xml(parts.get("xl/workbook.xml")!), "sheet").flatMap((sheet): [string, string[][]][] => {
    const target = targets.get(sheet.getAttributeNS(kRelations, "id"));
    if (!target) return [];
    const name = (sheet.getAttribute("name") ?? "").replaceAll("［", "[").replaceAll("］", "]");
    const rows = tags(xml(parts.get(`xl/${target}`)!), "row").map((row) => {
      const cells: string[] = [];
      for (const cell of tags(row, "c")) {
        const value = tags(cell, "v")[0]?.textContent ?? "";
        const type = cell.getAttribute("t");
        const isDate = value !== "" && (type === "d" || ((type ?? "n") === "n" && dates[Number(cell.getAttribute("s") ?? -1)]));
        if (isDate || type === "b" || type === "e") throw new OddCell(name, cell.getAttribute("r") ?? "", isDate ? "date" : type === "b" ? "logical" : "error");
        const text = type === "s" ? shared[Number(value)] : type === "inlineStr" ? textIn(cell) : value;
        cells[columnOf(cell.getAttribute("r"), cells.length)] = text ?? "";
      }
      return Array.from(cells, (cell) => cell ?? "");
    });
    const used = [...new Set(rows.flatMap((row) => row.flatMap((cell, i) => (cell === "" ? [] : [i]))))].sort((a, b) => a - b);
    const filled = rows.map((row) => used.map((i) => row[i] ?? "")).filter((row) => row.some(Boolean));
    return filled.length > 0 ? [[name, filled]] : [];
  });
}
