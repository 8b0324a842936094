// Connections, members and lattice columns: a form, the drawing beside it, the verdict, the report;
// and many cases from a CSV.
import { change, state } from "./address";
import { ask, sentence, type Answer } from "./client";
import { csvRows, csvText } from "./csv";
import { button, bytesOf, copyButton, download, dropPlace, el, fault, field, latest, noAnswer, picture, select } from "./dom";
import bolt from "../../examples/bolt.json";
import butt from "../../examples/butt.json";
import fillet from "../../examples/fillet.json";
import lattice from "../../examples/lattice-2.json";
import lattice3 from "../../examples/lattice-3.json";
import lattice4 from "../../examples/lattice-4.json";
import member from "../../examples/member.json";
import weldGroup from "../../examples/weld-group.json";
import { Form, type Case } from "./form";
import { Grid } from "./grid";
import { say } from "./language";
import { drawingIn, reportView } from "./report";
import { schemaOf, type Kind } from "./schema";
import { figureLines, figureTable } from "./section_view";
import { summary, verdict, type CheckJson } from "./verdict";
import { workbook } from "./workbook";

const kExamples: Record<Kind, unknown> = { bolt, butt, fillet, "weld-group": weldGroup, member, lattice };

const kindTitle = (kind: Kind): string =>
  ({
    bolt: say("螺栓群", "Bolt group"),
    fillet: say("角焊缝", "Fillet weld"),
    butt: say("对接焊缝", "Butt weld"),
    "weld-group": say("角焊缝群", "Group of fillet welds"),
    member: say("构件", "Member"),
    lattice: say("格构柱", "Lattice column"),
  })[kind];

export function editions(changed: () => void, both = true): HTMLElement {
  const list: [string, string][] = [["2017", "GB 50017-2017"], ["2003", `GB 50017-2003 ${say("（已废止）", "(withdrawn)")}`]];
  if (both) list.push(["both", say("两版", "both editions")]);
  return field(say("规范版本", "Edition"), select(list, state()["code"] ?? "2017", (code) => {
    change({ code: code === "2017" ? "" : code });
    changed();
  }));
}

// The case of the address, or the first example. Its edition is the one chosen above the form.
function kept(kind: Kind): Case {
  let value = structuredClone(kExamples[kind]) as Case;
  try {
    value = JSON.parse(state()["case"] ?? "") as Case;
  } catch {
    // none is there
  }
  const { code, ...rest } = value;
  if (code !== undefined) change({ code: String(code) === "2017" ? "" : String(code) });
  return rest;
}

const kFile = "case.json";

function commandLine(kind: Kind): string[] {
  if (kind === "lattice") return ["lattice", kFile, "--json", "--svg", "picture.svg"];
  return ["check", kind, kFile, "--json", "--report", "report.html", "--code", state()["code"] ?? "2017"];
}

async function checkView(place: HTMLElement, kind: Kind, above: HTMLElement | null): Promise<void> {
  const view = el("div", { class: "detail wide", "aria-live": "polite" });
  const form = new Form(kind, schemaOf(kind), (value) => {
    change({ case: JSON.stringify(value) });
    view.classList.add("waiting");
    void show();
  }, ["code"]);
  const show = latest(
    (): Promise<Answer> => ask(commandLine(kind), { [kFile]: JSON.stringify(form.case) }),
    (answer) => {
      const done = answer.status <= 1 && answer.out !== "";
      form.blame(done ? "" : sentence(answer, kFile));
      view.classList.remove("waiting");
      jump.textContent = done ? verdictLine(kind, answer) : say("没有结果", "no answer");
      view.replaceChildren(...(!done ? [noAnswer(sentence(answer, kFile), form.mend)] : kind === "lattice" ? latticeView(answer) : answerView(kind, answer)));
    },
  );
  // On a narrow screen the answer is below the form; this line of it stays in sight.
  const jump = button("", () => view.scrollIntoView(), { class: "jump", "aria-label": say("看结果", "Go to the answer") });
  const first = kept(kind);
  const batch = el("div", { class: "batch" });
  const extra = kind === "lattice"
    ? [field(say("示例", "Start from"), select([["", "–"], ["2", say("双肢", "two limbs")], ["3", say("三肢", "three limbs")], ["4", say("四肢", "four limbs")]], "", (limbs) => {
        const example = { 2: lattice, 3: lattice3, 4: lattice4 }[limbs];
        if (example) form.replace(example as Case);
      }))]
    : [editions(() => void show())];
  const drop = kind === "lattice" ? null : dropPlace(say("多个算例：CSV 或 JSON 文件", "Many cases: a CSV or JSON file"), ".csv,.json", async ([file]) => {
    if (file) await batchView(batch, kind, file.name, await bytesOf(file));
  });
  place.replaceChildren(el("div", { class: "formside" }, above, el("h1", {}, kindTitle(kind)), ...extra, form.element, drop, jump), el("div", { class: "answer" }, view, batch));
  form.set(first);
  await show();
}

function answerView(kind: Kind, answer: Answer): (HTMLElement | string)[] {
  const report = answer.files["report.html"];
  const place = el("div");
  const open = report && button(say("计算书", "Report"), () => place.replaceChildren(reportView(report)), { class: "main" });
  return [
    picture(drawingIn(report), kindTitle(kind)),
    answer.err ? el("p", { class: "warn" }, sentence(answer, kFile)) : "",
    verdict(JSON.parse(answer.out) as CheckJson),
    el("div", { class: "tools" }, open || null, copyButton(say("复制 JSON", "Copy JSON"), () => answer.out)),
    place,
  ];
}

function verdictLine(kind: Kind, answer: Answer): string {
  if (kind === "lattice") return say("看结果", "Results");
  const all = JSON.parse(answer.out) as CheckJson;
  return (all.editions ?? [all]).map(summary).join("  ");
}

interface LatticeJson {
  no: string;
  properties: Record<string, unknown>;
  limbs: { type: string; no: string; angle: number; area: number; x: number; y: number }[];
}

function latticeView(answer: Answer): HTMLElement[] {
  const lattice = JSON.parse(answer.out) as LatticeJson;
  const limbs = lattice.limbs.map((limb, i) => figureTable(`${say("分肢", "Limb")} ${i + 1}: ${limb.type} ${limb.no}`, figureLines({ angle: limb.angle, A: limb.area, xo: limb.x, yo: limb.y })));
  return [
    picture(answer.files["picture.svg"], lattice.no),
    el("div", { class: "tools" }, button("SVG", () => download(`${lattice.no}.svg`, answer.files["picture.svg"]!)),
      copyButton(say("复制 JSON", "Copy JSON"), () => answer.out)),
    figureTable(lattice.no, figureLines(lattice.properties)),
    ...limbs,
  ];
}

// The cases of a file, the worst first.
async function batchView(place: HTMLElement, kind: Kind, name: string, data: Uint8Array): Promise<void> {
  const file = name.toLowerCase().endsWith(".json") ? "cases.json" : "cases.csv";
  const answer = await ask(["check", kind, file, "--csv", "--sort", "--code", state()["code"] ?? "2017"], { [file]: data });
  const [head = [], ...rows] = csvRows(answer.out);
  place.replaceChildren(el("h2", {}, name));
  if (answer.err) place.append(fault(sentence(answer, file)));
  if (rows.length === 0) return;
  const used = head.map((_, i) => rows.some((row) => row[i]));
  const keep = (row: string[]) => row.filter((_, i) => used[i]);
  const lines = rows.map(keep);
  const numeric = keep(head).map((_, i) => lines.every((row) => row[i] === "" || !Number.isNaN(Number(row[i]))));
  const grid = new Grid({ label: name, columns: keep(head).map((each, i) => ({ name: each, numeric: numeric[i]! })), rows: lines });
  place.append(el("div", { class: "tools" },
    button("CSV", () => download("checked.csv", "\ufeff" + csvText([head, ...rows]))),
    button("XLSX", () => download("checked.xlsx", workbook({ name: kindTitle(kind), rows: [keep(head), ...lines], numeric, heads: 1 })))), grid.element);
}

export function connections(place: HTMLElement): Promise<void> {
  const kind = (["bolt", "fillet", "butt", "weld-group"] as const).find((each) => each === state()["kind"]) ?? "bolt";
  const list: [string, string][] = (["bolt", "fillet", "butt", "weld-group"] as const).map((each) => [each, kindTitle(each)]);
  const above = field(say("连接", "Connection"), select(list, kind, (next) => {
    change({ kind: next, case: "" }, true);
    void connections(place);
  }));
  return checkView(place, kind, above);
}

export const members = (place: HTMLElement) => checkView(place, "member", null);
export const latticeColumns = (place: HTMLElement) => checkView(place, "lattice", null);
