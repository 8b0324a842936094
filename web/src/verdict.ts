// The answer of a check for the eye: the verdict, a bar for each part, the trace by clause.
import { el } from "./dom";
import { shown } from "./figures";
import { say } from "./language";

interface Check {
  name: string;
  clause: string;
  ratio: number | null;
  pass: boolean;
  steps?: string[];
}
export interface CheckJson {
  id?: string;
  code: string;
  pass: boolean;
  ratio?: number | null;
  utilisation?: number | null;
  governs: string;
  results?: Record<string, unknown>;
  given?: string[];
  checks?: Check[];
  warnings?: (string | { key: string; text: string })[];
  editions?: CheckJson[];
  combinations?: CheckJson[];
}

const percent = (ratio: number | null | undefined) => (ratio == null ? "–" : `${shown(Number((ratio * 100).toPrecision(4)))} %`);

function bar(name: string, ratio: number | null | undefined, pass: boolean, note = ""): HTMLElement {
  const width = Math.min(Math.max(ratio ?? 1, 0), 1.25) / 1.25;
  const fill = el("i", { class: pass ? "pass" : "fail" });
  fill.style.width = `${width * 100}%`;
  return el("div", { class: "part" }, el("span", { class: "what" }, name, note && el("small", {}, ` ${note}`)),
    el("span", { class: "bar", "aria-hidden": "true" }, fill), el("span", { class: "num" }, percent(ratio)),
    el("span", { class: pass ? "pass" : "fail" }, pass ? say("满足", "passes") : say("不满足", "fails")));
}

function results(values: Record<string, unknown> = {}): HTMLElement {
  const body = el("tbody");
  for (const [key, value] of Object.entries(values)) {
    body.append(el("tr", {}, el("th", { scope: "row" }, key), el("td", { class: "num", title: String(value) }, shown(value))));
  }
  return el("table", { class: "figures" }, el("caption", {}, say("结果（mm、kN、kN·mm、N/mm²）", "Results (mm, kN, kN·mm, N/mm²)")), body);
}

function one(answer: CheckJson): HTMLElement {
  const word = answer.pass ? say("满足", "passes") : say("不满足", "fails");
  const worst = answer.ratio ?? answer.utilisation;
  const steps = (answer.checks ?? []).filter((check) => check.steps?.length).map((check) =>
    el("details", { class: "steps" }, el("summary", {}, `${check.name} · ${check.clause}`), el("ol", {}, ...check.steps!.map((step) => el("li", {}, step)))));
  return el("section", { class: "verdict" },
    el("p", { class: answer.pass ? "box pass" : "box fail" }, el("b", {}, word), ` · ${percent(worst)} · ${answer.governs}`,
      el("small", {}, ` GB 50017-${answer.code}`)),
    ...(answer.checks ?? []).map((check) => bar(check.name, check.ratio, check.pass, check.clause)),
    !answer.checks && bar(answer.governs, worst, answer.pass),
    ...(answer.warnings ?? []).map((warning) => el("p", { class: "warn" }, typeof warning === "string" ? warning : `${warning.key}: ${warning.text}`)),
    answer.given && el("details", { class: "steps" }, el("summary", {}, say("已知", "Given")), el("ol", {}, ...answer.given.map((each) => el("li", {}, each)))),
    ...steps,
    ...(answer.combinations ?? []).map((each) => el("details", { class: "group" }, el("summary", {}, `${each.id ?? ""} ${percent(each.ratio)}`), one({ ...each, code: each.code ?? answer.code }))),
    answer.results && results(answer.results));
}

export function verdict(answer: CheckJson): HTMLElement {
  return el("div", { class: "verdicts" }, ...(answer.editions ?? [answer]).map(one));
}
