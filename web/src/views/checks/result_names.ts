// What the figures of a check are called, and their units: from the command's own lines of them.
import { ask, lineOf } from "../../command/client";
import type { Kind } from "../../form/schema";
import { language, say } from "../../state/language";
import type { CheckJson } from "./answer";

export type ResultNames = Map<string, [name: string, unit: string]>;

const known = new Map<string, ResultNames>();

// Of members, whose lines have the figures in the trace; and of what is only kept or not.
const kNames: Record<string, [unit: string, zh: string, en: string]> = {
  f: ["N/mm²", "钢材强度设计值", "design strength of the steel"], fv: ["N/mm²", "抗剪强度设计值", "design shear strength"],
  fy: ["N/mm²", "钢材屈服强度", "yield strength"], epsilonK: ["", "钢号修正系数 εk", "factor of the grade εk"], A: ["mm²", "截面面积", "area"],
  lambdax: ["", "长细比 λx", "slenderness λx"], lambday: ["", "长细比 λy", "slenderness λy"], lambdaz: ["", "扭转换算长细比 λz", "slenderness of torsion λz"],
  lambdayz: ["", "弯扭换算长细比 λyz", "slenderness of flexural torsion λyz"],
  lambda0x: ["", "换算长细比 λ0x", "slenderness of the built-up column λ0x"], lambda0y: ["", "换算长细比 λ0y", "slenderness of the built-up column λ0y"],
  phix: ["", "稳定系数 φx", "stability factor φx"], phiy: ["", "稳定系数 φy", "stability factor φy"], phiz: ["", "稳定系数 φz", "stability factor φz"],
  phib: ["", "整体稳定系数 φb", "lateral stability factor φb"], phibx: ["", "整体稳定系数 φbx", "lateral stability factor φbx"],
  phiby: ["", "整体稳定系数 φby", "lateral stability factor φby"],
  gammax: ["", "塑性发展系数 γx", "plasticity factor γx"], gammay: ["", "塑性发展系数 γy", "plasticity factor γy"],
  betamx: ["", "等效弯矩系数 βmx", "equivalent moment factor βmx"], betamy: ["", "等效弯矩系数 βmy", "equivalent moment factor βmy"],
  betatx: ["", "等效弯矩系数 βtx", "equivalent moment factor βtx"], betaty: ["", "等效弯矩系数 βty", "equivalent moment factor βty"],
  class: ["", "截面板件宽厚比等级", "class of the section's plates"], classx: ["", "绕 x 轴截面分类", "buckling curve about x"], classy: ["", "绕 y 轴截面分类", "buckling curve about y"],
  passForces: ["", "螺栓受力满足", "bolt forces pass"], passX: ["", "板件截面（Vx）满足", "section under Vx passes"], passY: ["", "板件截面（Vy）满足", "section under Vy passes"],
  passSpacing: ["", "间距满足", "spacing passes"], okSigma: ["", "正应力满足", "normal stress passes"], okTau: ["", "剪应力满足", "shear stress passes"],
  okCombined: ["", "综合应力满足", "combined stress passes"], okReduced: ["", "折算应力满足", "reduced stress passes"], okSize: ["", "焊脚尺寸满足", "weld size passes"],
};

// "greatest shear Nv       Nv        51.06   51.06  kN" tells of Nv; "combined stress (combined), 6.1.5" of a check.
function read(text: string, names: ResultNames): void {
  for (const line of text.split("\n")) {
    const figure = /^(\S.*?) {2,}(\S+) +-?[\d.].*?(?: {2}([^\d\s-]\S*))?$/.exec(line);
    const check = /^(\S.*) \(([a-z-]+)\)[,，]/.exec(line);
    if (figure) names.set(figure[2]!, [figure[1]!.trim(), figure[3] ?? ""]);
    if (check) names.set(check[2]!, [check[1]!, ""]);
  }
}

// Asked once for a kind and a language, and again where an answer has a figure that none has had.
export async function resultNames(kind: Kind, code: string, given: string, answer: CheckJson): Promise<ResultNames> {
  const place = `${kind} ${language()}`;
  const names = known.get(place) ?? new Map<string, [string, string]>(Object.entries(kNames).map(([key, [unit, zh, en]]) => [key, [say(zh, en), unit]]));
  known.set(place, names);
  const all = (answer.editions ?? [answer]).flatMap((each) => [...Object.keys(each.results ?? {}), ...(each.checks ?? []).map((check) => check.name)]);
  if (all.some((key) => !names.has(key))) {
    read((await ask(lineOf(["check", `--code=${code}`], kind, "case.json"), { "case.json": given })).out, names);
    for (const key of all) if (!names.has(key)) names.set(key, ["", ""]);
  }
  return names;
}
