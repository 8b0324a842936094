// The answer of a check for the eye: the verdict, a bar for each part, the trace by clause.
import type { Kind } from "../../form/schema";
import { el } from "../../parts/dom";
import { figure } from "../../parts/figure_table";
import { percent, shown } from "../../parts/figures";
import { fold } from "../../parts/fold";
import { oneStop } from "../../parts/keyboard";
import { say } from "../../state/language";
import type { CheckJson } from "./answer";
import type { ResultNames } from "./result_names";

// The checks of a member, as the reports call them.
const kChecks: Record<string, [zh: string, en: string]> = {
  strength: ["强度", "strength"], net: ["净截面", "net section"], shear: ["抗剪", "shear"], combined: ["折算应力", "combined stress"],
  "stability-x": ["绕 x 轴稳定", "stability about x"], "stability-y": ["绕 y 轴稳定", "stability about y"], "stability-z": ["扭转稳定", "torsional stability"],
  lateral: ["整体稳定", "lateral buckling"], slenderness: ["长细比", "slenderness"], flange: ["翼缘宽厚比", "flange"], web: ["腹板高厚比", "web"],
  panel: ["腹板区格", "web panel"], wall: ["壁板宽厚比", "wall"], limbs: ["分肢", "limbs"], lacing: ["缀材", "lacing"], "limb-strength": ["分肢强度", "strength of the limbs"],
  "lacing-leg": ["缀条肢宽厚比", "leg of a bar"], "batten-stiffness": ["缀板线刚度", "stiffness of battens"],
};

// The parts of a connection, as the command's table calls them.
const kParts: Record<string, [zh: string, en: string]> = {
  interaction: ["螺栓受力相关公式", "bolt interaction"], bearing: ["孔壁承压", "bearing"], "section-x": ["板件截面（Vx）", "section for Vx"],
  "section-y": ["板件截面（Vy）", "section for Vy"], spacing: ["间距", "spacing"], size: ["焊脚尺寸", "weld size"],
  sigma: ["正应力", "normal stress"], tau: ["剪应力", "shear stress"], combined: ["综合应力", "combined stress"], reduced: ["折算应力", "reduced stress"],
};

// Whether a figure of a case in a list is a ratio to a limit; of members those of all checks stand in it.
export const isRatio = (kind: Kind, name: string): boolean => ["ratio", "utilisation"].includes(name) || (kind === "member" && name in kChecks);
export function checkName(name: string, kind: Kind): string {
  const words = (kind === "member" ? kChecks : kParts)[name];
  return words ? say(...words) : name;
}

function bar(name: string, ratio: number | null | undefined, pass: boolean, note = ""): HTMLElement {
  const width = Math.min(Math.max(ratio ?? 1, 0), 1.25) / 1.25;
  const fill = el("i", { class: pass ? "pass" : "fail" });
  fill.style.width = `${width * 100}%`;
  return el("div", { class: "part" }, el("span", { class: "what" }, name, note && el("small", {}, ` ${note}`)),
    el("span", { class: "bar", "aria-hidden": "true" }, fill), el("span", { class: "num" }, figure(ratio, percent)),
    el("span", { class: pass ? "pass" : "fail" }, pass ? say("满足", "passes") : say("不满足", "fails")));
}

function results(values: Record<string, unknown>, names: ResultNames): HTMLElement {
  const body = el("tbody");
  for (const [key, value] of Object.entries(values)) {
    const [name = "", unit = ""] = names.get(key) ?? [];
    body.append(el("tr", {}, el("th", { scope: "row" }, key), el("td", { class: "num", title: String(value) }, key === "ratio" && typeof value === "number" ? percent(value) : shown(value)),
      el("td", { class: "unit" }, unit), el("td", { class: "name" }, name)));
  }
  return el("table", { class: "figures" }, el("caption", {}, say("结果（mm、kN、kN·mm、N/mm²）", "Results (mm, kN, kN·mm, N/mm²)")), body);
}

const wordOf = (answer: CheckJson) => (answer.pass ? say("满足", "passes") : say("不满足", "fails"));
const worstOf = (answer: CheckJson) => answer.ratio ?? answer.utilisation;
export const summary = (answer: CheckJson) => `${answer.code}: ${wordOf(answer)} ${percent(worstOf(answer))}`;

// `place` parts what is folded in it from what is folded elsewhere.
function one(answer: CheckJson, names: ResultNames, place = answer.code): HTMLElement {
  const title = (name: string) => (answer.checks && names.get(name)?.[0]) || checkName(name, answer.checks ? "member" : "bolt");
  const [word, worst] = [wordOf(answer), worstOf(answer)];
  const steps = (answer.checks ?? []).filter((check) => check.steps?.length).map((check) =>
    fold(`${place} ${check.name}`, `${title(check.name)} · ${check.clause}`, [el("ol", {}, ...check.steps!.map((step) => el("li", {}, step)))], false, "steps"));
  return el("section", { class: "verdict" },
    el("p", { class: answer.pass ? "box pass" : "box fail" }, el("b", {}, word), " · ", figure(worst, percent), ` · ${title(answer.governs)}`,
      el("small", {}, ` GB 50017-${answer.code}`)),
    ...(answer.checks ?? []).map((check) => bar(title(check.name), check.ratio, check.pass, check.clause.replace(/^GB 50017-\d+ /, ""))),
    !answer.checks && bar(title(answer.governs), worst, answer.pass),
    ...(answer.warnings ?? []).map((warning) => el("p", { class: "warn" }, typeof warning === "string" ? warning : `${warning.key}: ${warning.text}`)),
    answer.given && fold(`${place} given`, say("已知", "Given"), [el("ol", {}, ...answer.given.map((each) => el("li", {}, each)))], false, "steps"),
    oneStop(el("div", {}, ...steps), "summary"),
    ...(answer.combinations ?? []).map((each, i) => {
      const combination = `${place} ${i + 1}`;
      return fold(combination, el("span", {}, `${each.id ?? ""} `, figure(each.ratio, percent)), [one({ ...each, code: each.code ?? answer.code }, names, combination)], false);
    }),
    answer.results && results(answer.results, names));
}

export function verdict(answer: CheckJson, names: ResultNames): HTMLElement {
  const editions = answer.editions?.map((each) => el("b", { class: each.pass ? "pass" : "fail", title: String(worstOf(each)) }, summary(each), " "));
  return el("div", { class: "verdicts" }, editions && el("p", { class: "editions" }, ...editions), ...(answer.editions ?? [answer]).map((each) => one(each, names)));
}
