// The schemas of case files, and the names of their keys in both languages.
import words from "inside:words";
import bolt from "../../../docs/schema/bolt.schema.json";
import butt from "../../../docs/schema/butt.schema.json";
import fillet from "../../../docs/schema/fillet.schema.json";
import lattice from "../../../docs/schema/lattice.schema.json";
import member from "../../../docs/schema/member.schema.json";
import weldGroup from "../../../docs/schema/weld-group.schema.json";
import { language, say } from "../state/language";

export interface Schema {
  description?: string;
  type?: string | string[];
  enum?: unknown[];
  properties?: Record<string, Schema>;
  items?: Schema;
  required?: string[];
}

export type Kind = "bolt" | "fillet" | "butt" | "weld-group" | "member" | "lattice";

export const kindTitle = (kind: Kind): string =>
  ({
    bolt: say("螺栓群", "Bolt group"),
    fillet: say("角焊缝", "Fillet weld"),
    butt: say("对接焊缝", "Butt weld"),
    "weld-group": say("角焊缝群", "Group of fillet welds"),
    member: say("构件", "Member"),
    lattice: say("格构柱", "Lattice column"),
  })[kind];

const kSchemas: Record<Kind, unknown> = { bolt, fillet, butt, "weld-group": weldGroup, member, lattice };

// Of keys that the document of keys has no line for: groups, and those that are alike in each weld.
const kMore: Record<string, [unit: string, zh: string, en: string]> = {
  section: ["", "截面", "section"],
  "section.lattice": ["", "格构柱（表的列标记）", "lattice column, by the signs of its table"],
  "section.lacing": ["", "缀材", "what joins the limbs of a lattice column"],
  lengths: ["mm", "计算长度", "effective lengths"],
  net: ["", "净截面与毛截面之比", "what holes leave of the section"],
  cases: ["", "内力组合", "combinations of forces"],
  "No.": ["", "型号", "the column's own number"],
  "welds.x1": ["mm", "起点 x", "start x"],
  "welds.y1": ["mm", "起点 y", "start y"],
  "welds.x2": ["mm", "终点 x", "end x"],
  "welds.y2": ["mm", "终点 y", "end y"],
  "welds.hf": ["mm", "焊脚尺寸", "leg size"],
};

export const schemaOf = (kind: Kind): Schema => kSchemas[kind] as Schema;

// What a key is called beside its sign, what it takes, and its unit.
export function wordsOf(kind: Kind, path: string, schema: Schema): { name: string; takes: string; unit: string } {
  const key = path.replace(/\.\d+(?=\.|$)/g, "").replace(/^cases\./, "");
  const known = words[kind]?.[key] ?? words["bolt"]?.[key] ?? words["fillet"]?.[key] ?? words["member"]?.[`section.lattice.${key}`];
  const more = kMore[key];
  if (!known && more) return { name: language() === "zh" ? more[1] : more[2], takes: "", unit: more[0] };
  const english = schema.description ?? "";
  const unit = known?.[0] ?? /(?:^|, )(mm|kN|kN·mm)\b/.exec(english)?.[1] ?? "";
  if (language() === "zh" && known) return { name: known[1], takes: known[2], unit };
  const [name = "", ...rest] = english.replace(/, (mm|kN·mm|kN|degrees)\b/, "; $1").split(/[;:] |, for the /);
  return { name, takes: rest.length > 0 ? english : "", unit };
}

export const isType = (schema: Schema, type: string): boolean =>
  Array.isArray(schema.type) ? schema.type.includes(type) : schema.type === type;

// Whether objects and lists of them stand where the schema has them; what else is wrong is the command's to say.
export function fits(schema: Schema, value: unknown): boolean {
  if (Array.isArray(value)) return !schema.properties && value.every((each) => (schema.items?.properties ? fits(schema.items, each) : typeof each !== "object"));
  if (typeof value !== "object" || value === null) return !schema.properties && !schema.items?.properties;
  return schema.properties !== undefined && Object.entries(value).every(([key, each]) => !(key in schema.properties!) || fits(schema.properties![key]!, each));
}
