// The case in the address.
import { fault } from "../parts/dom";
import type { Edition } from "../parts/edition";
import { change, state } from "../state/address";
import { say } from "../state/language";
import type { Case } from "./case";
import { fits, schemaOf, type Kind } from "./schema";

// The case that the address holds, else the one given; null for one that cannot be read. What it says of its edition
// has become the choice, from then on.
export function caseInLink(kind: Kind, otherwise: Case, edition: Edition | null): Case | null {
  const text = state()["case"];
  const value = text === undefined ? structuredClone(otherwise) : read(kind, text);
  if (!edition || value?.["code"] === undefined) return value;
  const taken = edition.take(value);
  if (text !== undefined) change({ case: JSON.stringify(taken) });
  return taken;
}

function read(kind: Kind, text: string): Case | null {
  try {
    const value: unknown = JSON.parse(text);
    return fits(schemaOf(kind), value) ? (value as Case) : null;
  } catch {
    return null;
  }
}

export const unreadLink = () => fault(say("链接中的算例不完整，不能读出；表单是空的。", "The case in this link is damaged and cannot be read; the form is empty."));
