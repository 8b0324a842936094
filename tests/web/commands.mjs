// Two hundred command lines of every kind, good ones and bad ones, in both languages. Those that
// save follow one another on one own store.
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { kSource } from "./browser.mjs";

const example = (name) => ({ [name]: readFileSync(join(kSource, "examples", name), "utf8") });
const kAliases = {
  h: [300, 400, 20, 10], box: [300, 400, 16], "flanged-cross": [300, 400, 200, 250, 10, 16], rect: [100, 200], hexagon: [60],
  triangle: [100, 90], circle: [40], tube: [110, 100], t: [10, 300, 16, 95, 80], "general-h": [10, 400, 20, 16, 95, 85, 145, 120],
  l: [10, 160, 12, 90], z: [10, 200, 12, 9, 60, 50], channel: [10, 200, 12, 11, 65, 70], cross: [10, 200, 95, 90, 85, 80],
  "general-box": [300, 400, 16, 14, 12, 10],
};
const kRows = [
  ["热轧普通工字钢", "I20a"], ["热轧普通槽钢", "[20a"], ["热轧等边角钢", "L100X10"], ["热轧宽翼缘H型钢", "HW300X300"],
  ["冷弯焊接薄壁圆钢管", "89X2.5"], ["热轧普通工字钢", "I63c"], ["热轧普通工字钢", "I99"], ["没有的表", "1"],
];
const kCodes = [
  "steel Q345 20", "steel Q355 45 fv", "steel Q235 20 fce", "steel Q999 20", "steel Q345 -1", "weld Q345 20 ffw", "weld Q390 30 ftw3",
  "eps Q460", "preload 10.9 20", "preload 8.8 24", "slip 1 Q345", "hole oversize 20", "area 24", "phi 60 345 b", "phi 251 Q235 c", "phi 80.5 Q345 a",
  "mu nosway 1 1", "mu sway 0.35 2.2", "mu-step free 1.1 0.5", "bolt C 4.8 ft", "gamma 0 x S1", "fatigue Z4 C", "nothing 1", "spacing pitch-least 22 12",
];

// [arguments, files]
export function commands() {
  const lines = [];
  const add = (line, files = {}) => lines.push([line, files]);
  for (const [alias, sizes] of Object.entries(kAliases)) {
    const given = sizes.map(String);
    add(["section", alias, ...given, "--json"]);
    add(["section", alias, ...given, "--base", "12.5", "-7", "--name", "一 a", "--lang", "zh"]);
    add(["section", alias, ...given.slice(1)]);
  }
  for (const bad of [["h", "300", "400", "20", "500"], ["h", "0", "400", "20", "10"], ["rect", "1e6", "1e-3", "--json"], ["circle", "x"], ["99"], ["rect", "1e7", "1"]]) add(["section", ...bad]);
  for (const row of kRows) {
    add(["show", ...row, "--json"]);
    add(["show", ...row, "--turn", "90", "--lang", "zh"]);
    add(["gauge", ...row, "--json"]);
  }
  for (const row of kRows.slice(0, 5)) add(["show", ...row, "--svg", "a.svg", "--dxf", "a.dxf", "--ifc", "a.ifc"]);
  for (const lang of ["zh", "en"]) for (const code of kCodes) add(["code", ...code.split(" "), "--json", "--lang", lang]);
  for (const code of kCodes.slice(0, 12)) add(["code", ...code.split(" "), "--code", "2003"]);
  for (const kind of ["bolt", "fillet", "butt", "weld-group", "member"]) {
    const file = `${kind}.json`;
    for (const code of ["2017", "2003", "both"]) add(["check", kind, file, "--json", "--code", code], example(file));
    add(["check", kind, file, "--report", "r.html"], example(file));
    add(["check", kind, file, "--lang", "zh"], { [file]: "{}" });
    add(["check", kind, file], { [file]: "[1" });
  }
  for (const kind of ["bolts", "members"]) add(["check", kind.slice(0, -1), `${kind}.csv`, "--csv", "--sort"], example(`${kind}.csv`));
  for (const limbs of [2, 3, 4]) add(["lattice", `lattice-${limbs}.json`, "--json", "--svg", "l.svg"], example(`lattice-${limbs}.json`));
  const loops = JSON.stringify({ unit: "mm", loops: [[[0, 0], [200, 0, 0.2], [180, 90], [0, 120]], [[40, 30], [90, 30], [90, 80], [40, 80]]] });
  add(["outline", "o.json", "--json", "--svg", "o.svg"], { "o.json": loops });
  add(["outline", "o.json", "--stress", "10,2000,-300,50"], { "o.json": loops });
  add(["outline", "o.dxf"], { "o.dxf": "no drawing" });
  const { section: _, ...choice } = JSON.parse(readFileSync(join(kSource, "examples/member.json"), "utf8"));
  add(["choose", "c.json", "--table", "热轧普通焊接H型钢,热轧窄翼缘H型钢", "--json", "--top", "7"], { "c.json": JSON.stringify(choice) });
  add(["choose", "c.json", "--table", "热轧普通工字钢", "--plot", "p.svg", "--lang", "zh"], { "c.json": JSON.stringify(choice) });
  add(["rows", "热轧普通工字钢", "--json"]);
  add(["rows", "热轧普通工字钢", "--where", "h(mm)>=560 && tw(mm)<<13", "--columns", "No.,A(cm^2)"]);
  add(["rows", "热轧普通工字钢", "--where", "It>=1e6", "--columns", "No.,It,Iw,Wpx", "--sort", "It", "--csv"]);
  add(["rows", "热轧等边角钢", "--where", "h(mm)>>"]);
  add(["tables", "--json"]);
  add(["styles"]);
  add(["--help"]);
  const set = (no, ...sizes) => ["--set", `No.=${no}`, ...["b", "h", "tf", "tw"].flatMap((sign, i) => ["--set", `${sign}(mm)=${sizes[i]}`])];
  const own = "自定义对称H型钢";
  add(["store", "add", own, ...set("H400X300", 300, 400, 20, 10)]);
  add(["store", "add", own, ...set("H400X300", 300, 400, 20, 10)]);
  add(["store", "add", own, ...set("大H", 350, 600, 24, 12.5), "--lang", "zh"]);
  add(["store", "add", own, ...set("bad", 300, 400, 20, 500)]);
  add(["store", "edit", own, "H400X300", "--set", "tw(mm)=12"]);
  add(["rows", own, "--json"]);
  add(["store", "import", "i.csv", "--table", own], { "i.csv": "No.,b(mm),h(mm),tf(mm),tw(mm)\nH500,300,500,20,10\nH3,1,2,3,4\n" });
  add(["store", "import", "i.KDB"], { "i.KDB": "no store" });
  add(["store", "delete", own, "大H"]);
  add(["show", own, "H400X300", "--json"]);
  add(["store", "export", own, "--to", "o.csv"]);
  add(["store", "export", own, "--to", "o.json"]);
  add(["tables"]);
  return lines;
}
