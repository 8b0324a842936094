// The Chinese names of the keys of case files and what they take, from the document that lists them.
import { readFileSync } from "node:fs";

// {kind: {key: [unit, name, values in Chinese, meaning in English]}}
export function caseWords(file) {
  const words = {};
  let kind = "";
  for (const line of readFileSync(file, "utf8").split("\n")) {
    kind = /^## .*`check ([a-z-]+)`/.exec(line)?.[1] ?? kind;
    const cells = line.split("|").map((cell) => cell.trim());
    const key = /^`(.+)`$/.exec(cells[1] ?? "")?.[1];
    if (!key || cells.length < 7) continue;
    (words[kind] ??= {})[key] = [cells[3], cells[4], cells[5], cells[6]];
  }
  return words;
}
