// Names and units of the figures that the command answers, and how a figure is written.
import { language } from "../state/language";

// key: [unit, Chinese, English]; of sections and outlines, mm.
const kFigures: Record<string, [string, string, string]> = {
  A: ["mm²", "截面面积", "area"],
  area: ["mm²", "截面面积", "area"],
  width: ["mm", "宽度", "width"],
  height: ["mm", "高度", "height"],
  xo: ["mm", "形心 x", "centroid x"],
  yo: ["mm", "形心 y", "centroid y"],
  xc: ["mm", "形心 x", "centroid x"],
  yc: ["mm", "形心 y", "centroid y"],
  Ix: ["mm⁴", "惯性矩 x", "moment of inertia about x"],
  Iy: ["mm⁴", "惯性矩 y", "moment of inertia about y"],
  Ixo: ["mm⁴", "形心轴惯性矩 x", "centroidal moment of inertia x"],
  Iyo: ["mm⁴", "形心轴惯性矩 y", "centroidal moment of inertia y"],
  Ixy: ["mm⁴", "惯性积", "product of inertia"],
  angle: ["°", "转角", "turned by"],
  I1: ["mm⁴", "主惯性矩 1", "principal moment 1"],
  I2: ["mm⁴", "主惯性矩 2", "principal moment 2"],
  theta: ["°", "主轴 1 的转角", "angle of principal axis 1"],
  ix: ["mm", "回转半径 x", "radius of gyration x"],
  iy: ["mm", "回转半径 y", "radius of gyration y"],
  ixo: ["mm", "形心轴回转半径 x", "centroidal radius of gyration x"],
  iyo: ["mm", "形心轴回转半径 y", "centroidal radius of gyration y"],
  imin: ["mm", "最小回转半径", "least radius of gyration"],
  i1: ["mm", "主回转半径 1", "principal radius 1"],
  i2: ["mm", "主回转半径 2", "principal radius 2"],
  Wx1: ["mm³", "截面模量 x（上）", "modulus x, top"],
  Wx2: ["mm³", "截面模量 x（下）", "modulus x, bottom"],
  WyL: ["mm³", "截面模量 y（左）", "modulus y, left"],
  WyR: ["mm³", "截面模量 y（右）", "modulus y, right"],
  Wxo1: ["mm³", "形心轴截面模量 x（上）", "centroidal modulus x, top"],
  Wxo2: ["mm³", "形心轴截面模量 x（下）", "centroidal modulus x, bottom"],
  WyoL: ["mm³", "形心轴截面模量 y（左）", "centroidal modulus y, left"],
  WyoR: ["mm³", "形心轴截面模量 y（右）", "centroidal modulus y, right"],
  Sx1: ["mm³", "面积矩 x（上）", "first moment x, top"],
  Sx2: ["mm³", "面积矩 x（下）", "first moment x, bottom"],
  SyL: ["mm³", "面积矩 y（左）", "first moment y, left"],
  SyR: ["mm³", "面积矩 y（右）", "first moment y, right"],
  Sxo: ["mm³", "形心轴面积矩 x", "centroidal first moment x"],
  Syo: ["mm³", "形心轴面积矩 y", "centroidal first moment y"],
  Wpx: ["mm³", "塑性截面模量 x", "plastic modulus x"],
  Wpy: ["mm³", "塑性截面模量 y", "plastic modulus y"],
  xp: ["mm", "塑性中和轴 x", "plastic axis x"],
  yp: ["mm", "塑性中和轴 y", "plastic axis y"],
  It: ["mm⁴", "自由扭转常数", "torsion constant"],
  Iw: ["mm⁶", "扇性惯性矩", "warping constant"],
  xs: ["mm", "剪心 x", "shear centre x"],
  ys: ["mm", "剪心 y", "shear centre y"],
  Asx: ["mm²", "受剪面积 x", "shear area x"],
  Asy: ["mm²", "受剪面积 y", "shear area y"],
  betax: ["mm", "不对称系数 βx", "asymmetry βx"],
  betay: ["mm", "不对称系数 βy", "asymmetry βy"],
  mass: ["kg/m", "每米质量", "mass"],
  surface: ["m²/m", "外表面积", "outer surface"],
  tmax: ["mm", "最大板厚", "greatest thickness"],
  tmin: ["mm", "最小板厚", "least thickness"],
  e0: ["mm", "剪心距", "shear centre distance"],
};

export const unitOf = (key: string): string => kFigures[key]?.[0] ?? "";
export const nameOf = (key: string): string => kFigures[key]?.[language() === "zh" ? 1 : 2] ?? "";

// For the eye: seven digits that count, thousands apart; whole digits stand beside it.
export function shown(value: unknown): string {
  if (value === null) return "–";
  if (typeof value === "boolean") return value ? "✓" : "✗";
  if (typeof value !== "number") return String(value);
  const size = Math.abs(value);
  if (size !== 0 && (size < 1e-4 || size >= 1e15)) return value.toExponential(5);
  const text = size >= 1e6 ? value.toFixed(0) : String(Number(value.toPrecision(7)));
  const [whole, rest] = text.split(".");
  return whole!.replace(/\B(?=(\d{3})+$)/g, "\u202f") + (rest ? `.${rest}` : "");
}

// A ratio to its limit: four digits, near the limit seven; and on which side of it, where those do not tell.
export function percent(ratio: number | null | undefined): string {
  if (ratio == null) return "–";
  const rounded = Number((ratio * 100).toPrecision(Math.abs(ratio - 1) < 5e-4 ? 7 : 4));
  const side = rounded !== 100 || ratio === 1 ? "" : ratio > 1 ? "> " : "< ";
  return `${side}${shown(rounded)} %`;
}

// A number as it is typed: the wide digits and signs of Chinese keyboards are taken as plain ones; what else looks
// like digits (10³, ②) is another number and stays what it is.
export const narrow = (text: string): string =>
  text.replace(/[\uff01-\uff5e]/g, (wide) => String.fromCharCode(wide.charCodeAt(0) - 0xfee0)).replaceAll("\u2212", "-").trim();

// A number as it is typed or as the page writes it, whose thousands stand apart (1 234 567.8), for the command to
// judge. Other blanks stay: 12 34 is no number.
export const bare = (text: string): string =>
  narrow(text).replace(/^([+-]?)([1-9]\d{0,2}(?:[ \u00a0\u2009\u202f]\d{3})+)(?=[.e]|$)/i, (_, sign: string, whole: string) => sign + whole.replace(/\D/g, ""));

// The number of a typed text; NaN where it is none.
export const typedNumber = (text: string): number =>
  /^[+-]?(\d+\.?\d*|\.\d+)(e[+-]?\d+)?$/i.test(bare(text)) ? Number(bare(text)) : Number.NaN;

// The unit that a column's sign tells: "A(cm^2)" has cm².
export function signParts(sign: string): [name: string, unit: string] {
  const parts = /^(.+)\((.+)\)$/.exec(sign);
  const powers: Record<string, string> = { "^2": "²", "^3": "³", "^4": "⁴", "^6": "⁶" };
  return parts ? [parts[1]!, parts[2]!.replace(/\^[2346]/g, (power) => powers[power]!)] : [sign, ""];
}
