// The schemas of case files, and the names of their keys in both languages.
import words from "inside:words";
import bolt from "../../docs/schema/bolt.schema.json";
import butt from "../../docs/schema/butt.schema.json";
import fillet from "../../docs/schema/fillet.schema.json";
import lattice from "../../docs/schema/lattice.schema.json";
import member from "../../docs/schema/member.schema.json";
import weldGroup from "../../docs/schema/weld-group.schema.json";
import { language } from "./language";

export interface Schema {
  description?: string;
  type?: string | string[];
  enum?: unknown[];
  properties?: Record<string, Schema>;
  items?: Schema;
  required?: string[];
}

export type Kind = "bolt" | "fillet" | "butt" | "weld-group" | "member" | "lattice";

const kSchemas: Record<Kind, unknown> = { bolt, fillet, butt, "weld-group": weldGroup, member, lattice };

export const schemaOf = (kind: Kind): Schema => kSchemas[kind] as Schema;

// What a key is called beside its sign, what it takes, and its unit.
export function wordsOf(kind: Kind, path: string, schema: Schema): { name: string; takes: string; unit: string } {
  const key = path.replace(/\[\d+\]/g, "").replace(/^cases\./, "");
  const known = words[kind]?.[key] ?? words["bolt"]?.[key] ?? words["member"]?.[`section.lattice.${key}`];
  const english = schema.description ?? "";
  const unit = known?.[0] ?? /(?:^|, )(mm|kN|kN·mm)\b/.exec(english)?.[1] ?? "";
  if (language() === "zh" && known) return { name: known[1], takes: known[2], unit };
  const [name = "", ...rest] = english.split(/[;,:] /);
  return { name, takes: rest.length > 0 ? english : "", unit };
}

export const isType = (schema: Schema, type: string): boolean =>
  Array.isArray(schema.type) ? schema.type.includes(type) : schema.type === type;
