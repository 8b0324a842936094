// Connections, members and lattice columns: a form, the drawing beside it, the verdict, the report.
import { change, startView, state } from "./address";
import { Batch } from "./batch";
import { ask, lineOf, sentence, type Answer, type Line } from "./client";
import { button, copyButton, download, dropPlace, el, fault, field, noAnswer, picture, select } from "./dom";
import { Edition } from "./edition";
import bolt from "../../examples/bolt.json";
import butt from "../../examples/butt.json";
import fillet from "../../examples/fillet.json";
import lattice from "../../examples/lattice-2.json";
import lattice3 from "../../examples/lattice-3.json";
import lattice4 from "../../examples/lattice-4.json";
import member from "../../examples/member.json";
import weldGroup from "../../examples/weld-group.json";
import { Form, type Case } from "./form";
import { readLists } from "./guide";
import { keepFocus, oneStop, reachable } from "./keyboard";
import { say } from "./language";
import { Question } from "./question";
import { drawingIn, reportView } from "./report";
import { resultNames, type ResultNames } from "./result_names";
import { fits, schemaOf, type Kind } from "./schema";
import { figureLines, figureTable } from "./section_view";
import { summary, verdict, type CheckJson } from "./verdict";

const kExamples: Record<Kind, unknown> = { bolt, butt, fillet, "weld-group": weldGroup, member, lattice };

export const kindTitle = (kind: Kind): string =>
  ({
    bolt: say("螺栓群", "Bolt group"),
    fillet: say("角焊缝", "Fillet weld"),
    butt: say("对接焊缝", "Butt weld"),
    "weld-group": say("角焊缝群", "Group of fillet welds"),
    member: say("构件", "Member"),
    lattice: say("格构柱", "Lattice column"),
  })[kind];

// The case that the address holds, else the one given; null for one that cannot be read.
export function caseInLink(kind: Kind, otherwise: Case): Case | null {
  const text = state()["case"];
  if (text === undefined) return structuredClone(otherwise);
  try {
    const value: unknown = JSON.parse(text);
    return fits(schemaOf(kind), value) ? (value as Case) : null;
  } catch {
    return null;
  }
}

export const unreadLink = () => fault(say("链接中的算例不完整，不能读出；表单是空的。", "The case in this link is damaged and cannot be read; the form is empty."));

const kFile = "case.json";

function commandLine(kind: Kind, code: string): Line {
  if (kind === "lattice") return lineOf(["lattice", "--json", "--svg", "picture.svg"], kFile);
  return lineOf(["check", "--json", "--report", "report.html", `--code=${code}`], kind, kFile);
}

async function checkView(place: HTMLElement, kind: Kind, above: HTMLElement | null): Promise<void> {
  const isHere = startView();
  if (kind === "member" || kind === "lattice") await readLists();
  if (!isHere()) return;
  const view = el("div", { class: "detail wide", "aria-live": "polite" });
  const form = new Form(kind, schemaOf(kind), (value) => {
    change({ case: JSON.stringify(value) });
    batch.formChanged();
    view.hidden = false;
    void question.ask();
  }, ["code"], () => question.outdate());
  const question = new Question(view, async () => {
    const [given, code] = [JSON.stringify(form.case), edition.asked];
    const answer = await ask(commandLine(kind, code), { [kFile]: given });
    const done = answer.status <= 1 && answer.out !== "";
    const names: ResultNames = done && kind !== "lattice" ? await resultNames(kind, code, given, JSON.parse(answer.out) as CheckJson) : new Map();
    return () => {
      form.blame(done ? "" : sentence(answer, kFile));
      line = done ? verdictLine(kind, answer) : say("没有结果", "no answer");
      view.replaceChildren(...(!done ? [noAnswer(sentence(answer, kFile), form.mend)] : kind === "lattice" ? latticeView(answer) : answerView(kind, answer, names)));
    };
  }, () => tellLine());
  const edition = new Edition(() => {
    void question.ask();
    void batch.again();
  });
  // On a narrow screen the answer is below the form; this line of it stays in sight.
  let line = "";
  const jump = button("", () => (view.hidden ? batch.element : view).scrollIntoView(), { class: "jump", title: say("看结果", "Go to the answer") });
  const tellLine = () => {
    jump.textContent = view.hidden ? batch.line : line;
    jump.classList.toggle("waiting", view.hidden ? batch.isWaiting : question.isWaiting);
  };
  const given = caseInLink(kind, kExamples[kind] as Case);
  const first = given && kind !== "lattice" ? edition.take(given) : given;
  // The answer to a file of cases takes the place of that to the form until one of them is opened.
  const batch = new Batch(kind, edition, (value) => form.replace(edition.take(value)), tellLine, () => {
    view.hidden = false;
    tellLine();
  });
  const extra = kind === "lattice"
    ? [field(say("示例", "Start from"), select([["", "–"], ["2", say("双肢", "two limbs")], ["3", say("三肢", "three limbs")], ["4", say("四肢", "four limbs")]], "", (limbs) => {
        const example = { 2: lattice, 3: lattice3, 4: lattice4 }[limbs];
        if (example) form.replace(example as Case);
      }))]
    : [edition.element];
  const drop = kind === "lattice" ? null : dropPlace(say("多个算例：CSV 或 JSON 文件", "Many cases: a CSV or JSON file"), ".csv,.json", async ([file]) => {
    if (!file) return;
    view.hidden = true;
    await batch.take(file);
  });
  place.replaceChildren(el("div", { class: "formside" }, above, el("h1", {}, kindTitle(kind)), first ? null : unreadLink(), ...extra, form.element, drop, jump), reachable(el("div", { class: "answer" }, batch.element, view), say("结果", "the answer")));
  form.set(first ?? {});
  view.hidden = batch.resume();
  await question.ask();
}

function answerView(kind: Kind, answer: Answer, names: ResultNames): (HTMLElement | string)[] {
  const report = answer.files["report.html"];
  const place = el("div");
  const open = report && button(say("计算书", "Report"), () => place.replaceChildren(reportView(report)), { class: "main" });
  return [
    answer.err ? el("p", { class: "warn" }, sentence(answer, kFile)) : "",
    el("div", { class: "beside-picture" }, verdict(JSON.parse(answer.out) as CheckJson, names), picture(drawingIn(report), kindTitle(kind))),
    oneStop(el("div", { class: "tools" }, open || null, copyButton(say("复制 JSON", "Copy JSON"), () => answer.out))),
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
    oneStop(el("div", { class: "tools" }, button("SVG", () => download(`${lattice.no}.svg`, answer.files["picture.svg"]!)),
      copyButton(say("复制 JSON", "Copy JSON"), () => answer.out))),
    el("div", { class: "beside-picture" }, el("div", {}, figureTable(lattice.no, figureLines(lattice.properties)), ...limbs), picture(answer.files["picture.svg"], lattice.no)),
  ];
}

const kConnections = ["bolt", "fillet", "butt", "weld-group"] as const;

export async function connections(place: HTMLElement): Promise<void> {
  const asked = state()["kind"] ?? "bolt";
  const kind = kConnections.find((each) => each === asked);
  if (!kind) return place.replaceChildren(fault(say(`kind：“${asked}”不是连接；应为 ${kConnections.join("、")}`, `kind: "${asked}" is no connection; right would be one of ${kConnections.join(", ")}`)));
  const above = field(say("连接", "Connection"), select(kConnections.map((each) => [each, kindTitle(each)]), kind, (next) => {
    change({ kind: next, case: "" }, true);
    void keepFocus(() => connections(place));
  }));
  await checkView(place, kind, above);
}

export const members = (place: HTMLElement) => checkView(place, "member", null);
export const latticeColumns = (place: HTMLElement) => checkView(place, "lattice", null);
