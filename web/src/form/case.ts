// A case as its JSON file has it: its places, their values, and how they are typed.
import { typedNumber } from "../parts/figures";
import { isType, type Schema } from "./schema";

export type Case = Record<string, unknown>;

// "welds[0].x1", as the command writes a place.
export const pathText = (path: string[]) => path.reduce((text, key) => (/^\d+$/.test(key) ? `${text}[${key}]` : text ? `${text}.${key}` : key), "");

export function get(value: unknown, path: string[]): unknown {
  return path.reduce<unknown>((at, key) => (at as Record<string, unknown> | undefined)?.[key], value);
}

export function put(value: Record<string, unknown>, path: string[], set: unknown): void {
  const [key, ...rest] = path as [string, ...string[]];
  if (rest.length === 0) {
    if (set === undefined) delete value[key];
    else value[key] = set;
    return;
  }
  const inner = (value[key] ??= {}) as Record<string, unknown>;
  put(inner, rest, set);
  if (!Array.isArray(inner) && Object.keys(inner).length === 0) delete value[key];
}

export const same = (a: unknown, b: unknown): boolean => JSON.stringify(a) === JSON.stringify(b);
const isObject = (value: unknown): value is Case => typeof value === "object" && value !== null && !Array.isArray(value);

// Where a case has changed, by the innermost keys.
export function differences(from: unknown, to: unknown, path: string[] = []): { path: string[]; from: unknown; to: unknown }[] {
  if (!isObject(from) || !isObject(to)) return same(from, to) ? [] : [{ path, from, to }];
  return [...new Set([...Object.keys(from), ...Object.keys(to)])].flatMap((key) => differences(from[key], to[key], [...path, key]));
}

export const textOf = (value: unknown): string => (value === undefined ? "" : Array.isArray(value) ? value.join("; ") : String(value));

// What is typed, as JSON has it: a number, a list with semicolons, else text, which the command then judges; so is
// a list's place where nothing stands.
export function valueOf(text: string, schema: Schema): unknown {
  const trimmed = text.trim();
  if (trimmed === "") return undefined;
  if (/[;；]/.test(trimmed) && isType(schema, "array")) return trimmed.split(/[;；]/).map((part) => one(part, schema.items ?? schema));
  if (schema.type === "array") return [one(trimmed, schema.items ?? schema)];
  return one(trimmed, schema);
}

function one(text: string, schema: Schema): unknown {
  const number = typedNumber(text);
  const numeric = isType(schema, "number") || isType(schema, "integer");
  return Number.isFinite(number) && numeric ? number : text.trim();
}
