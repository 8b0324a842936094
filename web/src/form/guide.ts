// What a form offers of the catalogue: lists for tables, numbers, styles and steels, and one way of naming a
// section at a time. Every list is the command's own answer.
import { keyOf, kFirstSizes, rowsOf, styles as readStyles, tables as readTables, type StyleJson, type TableJson } from "../command/catalogue";
import { ask, lineOf, sentence } from "../command/client";
import { language, say } from "../state/language";
import type { Case } from "./case";
import { kExamples, kLimbs } from "./examples";
import { schemaOf, type Kind } from "./schema";

export type Choices = [value: string, text: string][];
type Section = Record<string, unknown>;
export type Way = "table" | "style" | "lattice";

const kLacing: Record<string, Section> = {
  lacing: { type: "lacing", table: "热轧等边角钢", no: "L50X5" },
  battens: { type: "battens", width: 200, thick: 10, pitch: 1000 },
};
const kFirst: Record<Way, () => Section> = {
  table: () => ({ table: "热轧窄翼缘H型钢", no: "HN400X200" }),
  style: () => ({ style: "h", sizes: [300, 400, 20, 10] }),
  lattice: () => ({ lattice: limbs(kExamples.lattice), lacing: kLacing["lacing"] }),
};

export const ways = (): [Way, string][] => [
  ["table", say("表中的型号", "a row of a table")], ["style", say("自定义类型与尺寸", "a style with its sizes")],
  ["lattice", say("格构柱", "a lattice column")],
];

// In the section of a member the column has no number of its own.
function limbs(example: Case): Case {
  const { "No.": _, ...rest } = example;
  return rest;
}

const rowNumbers = new Map<string, Promise<string[]>>();

async function numbersOf(table: string): Promise<string[]> {
  const { columns, rows } = await rowsOf(table);
  const key = keyOf(columns);
  return rows.map((row) => row.cells[key] ?? "").filter(Boolean);
}

function numbers(table: string): Promise<string[]> {
  let known = rowNumbers.get(table);
  if (!known) {
    known = numbersOf(table).catch(() => {
      rowNumbers.delete(table); // to be asked again
      return [];
    });
    rowNumbers.set(table, known);
  }
  return known;
}

let tables: TableJson[] = [];
let styles: StyleJson[] = [];

// Before a form is made; own rows come and go, so that its lists are read anew.
export async function readLists(): Promise<void> {
  rowNumbers.clear();
  [tables, styles] = await Promise.all([readTables(), readStyles()]);
}

export const styleOf = (section: Section): StyleJson | undefined =>
  styles.find((each) => [each.alias, each.table, String(each.style)].includes(String(section["style"])));

export const wayOf = (section: Section = {}): Way => ("lattice" in section || "lacing" in section ? "lattice" : "style" in section || "sizes" in section ? "style" : "table");

const at = (value: Case, path: string[]): unknown => path.reduce<unknown>((inner, key) => (inner as Section | undefined)?.[key], value);
const around = (value: Case, path: string[]): Section => (at(value, path.slice(0, -1)) ?? {}) as Section;

// The key beside it that names the table of a number, and the other way round.
const kTableOf: [number: RegExp, table: string][] = [[/^no$/, "table"], [/^(P[1-4])No\.$/, "$1Type"]];
const tableKey = (number: string) => kTableOf.flatMap(([form, table]) => (form.test(number) ? [number.replace(form, table)] : []))[0];
const numberKey = (table: string) => (table === "table" ? "no" : /^P[1-4]Type$/.test(table) ? table.replace("Type", "No.") : null);

// What asks for the list of a field; null for one that is typed.
export function listOf(kind: Kind, path: string[], value: Case): (() => Promise<Choices>) | null {
  const key = path.at(-1)!;
  const plain = (names: string[]): Choices => names.map((name) => [name, name]);
  if (key === "steel") return async () => plain(schemaOf("bolt").properties!["steel"]!.enum as string[]);
  if (kind !== "member" && kind !== "lattice") return null;
  if (key === "style") return async () => styles.map((each) => [each.alias, language() === "zh" ? each.table : `${each.alias} · ${each.shape}`]);
  if (numberKey(key)) {
    const fits = (table: TableJson) => table.rows > 0 && (key !== "table" || !path.includes("lacing") || table.name === "热轧等边角钢") &&
      (key === "table" || table.source === "rolled");
    return async () => plain(tables.filter(fits).map((table) => table.name));
  }
  const table = tableKey(key);
  return table ? async () => plain(await numbers(String(around(value, path)[table] ?? ""))) : null;
}

const kOfLimbs = /^(k|kx|ky)\(mm\)$|^P[1-4]/;

// Whether a field has its place in the case as it is; what is given always has.
export function hasPlace(path: string[], value: Case): boolean {
  if (at(value, path) !== undefined) return true;
  const key = path.at(-1)!;
  if (path[0] === "section" && path.length === 2) {
    const section = (value["section"] ?? {}) as Section;
    const way = wayOf(section);
    if (key === "gap") return way === "table" && (tables.find((table) => table.name === section["table"])?.family.includes("pair") ?? false);
    return { table: way === "table", no: way === "table", style: way === "style", sizes: way === "style", lattice: way === "lattice", lacing: way === "lattice" }[key] ?? true;
  }
  const inner = around(value, path);
  if (path.includes("lacing")) return inner["type"] === "battens" ? !["table", "no", "angle"].includes(key) : !["width", "thick", "pitch"].includes(key);
  const example = kLimbs[String(inner["table"])];
  return !kOfLimbs.test(key) || !example || key in example;
}

// The section by another way, as it was when that way was left.
export function byWay(way: Way, left: Map<Way, Section>): Section {
  return structuredClone(left.get(way) ?? kFirst[way]());
}

// The case after a choice: what belonged to the choice before it alone makes room for what this one needs.
export async function settled(kind: Kind, path: string[], before: Case): Promise<Case> {
  const value = structuredClone(before);
  const inner = around(value, path);
  const key = path.at(-1)!;
  const number = numberKey(key);
  if (path.includes("lattice") && key === "table" || kind === "lattice" && path.length === 1 && key === "table") {
    const example = kLimbs[String(inner["table"])];
    if (example) {
      for (const each of Object.keys(inner)) if (kOfLimbs.test(each) && !(each in example)) delete inner[each];
      const isOfExample = Object.values(kLimbs).some((each) => each["No."] === inner["No."]); // not the user's own number
      for (const [each, given] of Object.entries(example)) if (each !== "No.") inner[each] ??= given;
      if (isOfExample) inner["No."] = example["No."];
    }
  } else if (number && inner[key] !== undefined) {
    const all = await numbers(String(inner[key]));
    if (!all.includes(String(inner[number]))) inner[number] = all[0];
    delete inner["gap"];
  } else if (key === "style") {
    const style = styleOf(inner);
    if (style) inner["sizes"] = (kFirstSizes[style.alias] ?? "").split(",").map(Number);
  } else if (key === "type" && path.includes("lacing")) {
    const { l1 } = inner;
    (value["section"] as Section)["lacing"] = { ...kLacing[String(inner["type"])], ...(l1 === undefined ? {} : { l1 }) };
  }
  return kind === "member" ? without(value, ["edges", "joined"]) : value;
}

// Leaves out what the command refuses with this section: what was said of another one.
async function without(value: Case, keys: string[]): Promise<Case> {
  const file = "case.json";
  for (const key of keys) {
    if (!(key in value)) continue;
    const answer = await ask(lineOf(["check"], "member", file), { [file]: JSON.stringify(value) });
    if (new RegExp(`^${key}\\s*[:：]`).test(sentence(answer, file))) delete value[key];
  }
  return value;
}
