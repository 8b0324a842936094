// Connections, members and lattice columns: a form, the drawing beside it, the verdict, the report.
import { ask, lineOf, sentence, type Answer, type Line } from "../../command/client";
import { caseInLink, unreadLink } from "../../form/case_link";
import { kExamples, kLimbs } from "../../form/examples";
import { Form } from "../../form/form";
import { readLists } from "../../form/guide";
import { kindTitle, schemaOf, type Kind } from "../../form/schema";
import { button, copyButton, download, dropPlace, el, field, noAnswer, noSuch, picture, select } from "../../parts/dom";
import { Edition } from "../../parts/edition";
import { figureLines, figureTable } from "../../parts/figure_table";
import { oneStop, reachable } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { change, choose, startView, state } from "../../state/address";
import { kept } from "../../state/kept";
import { say } from "../../state/language";
import type { CheckJson } from "./answer";
import { Batch } from "./batch";
import { drawingIn, reportView } from "./report";
import { resultNames, type ResultNames } from "./result_names";
import { summary, verdict } from "./verdict";

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
  const edition = new Edition(() => {
    void question.ask();
    void batch.again();
  }, true, () => form.remember());
  const form: Form = new Form(kind, schemaOf(kind), (value) => {
    change({ case: JSON.stringify(value) });
    batch.formChanged();
    view.hidden = false;
    void question.ask();
  }, kind === "lattice" ? null : edition, [], () => question.outdate());
  const question = new Question(view, async () => {
    const [given, code] = [JSON.stringify(form.case), edition.asked];
    const answer = await ask(commandLine(kind, code), { [kFile]: given });
    const done = answer.status <= 1 && answer.out !== "";
    const names: ResultNames = done && kind !== "lattice" ? await resultNames(kind, code, given, JSON.parse(answer.out) as CheckJson) : new Map();
    return () => {
      form.blame(done ? "" : sentence(answer, kFile));
      line = done ? verdictLine(kind, answer) : say("没有结果", "no answer");
      view.replaceChildren(...(!done ? [noAnswer(sentence(answer, kFile), form.mend)] : kind === "lattice" ? latticeView(answer) : answerView(kind, answer, names, `${code} ${given}`)));
    };
  }, () => tellLine());
  // On a narrow screen the answer is below the form; this line of it stays in sight.
  let line = "";
  const jump = button("", () => (view.hidden ? batch.element : view).scrollIntoView(), { class: "jump", title: say("看结果", "Go to the answer") });
  const tellLine = () => {
    jump.textContent = view.hidden ? batch.line : line;
    jump.classList.toggle("waiting", view.hidden ? batch.isWaiting : question.isWaiting);
  };
  const first = caseInLink(kind, kExamples[kind], kind === "lattice" ? null : edition);
  // The answer to a file of cases takes the place of that to the form until one of them is opened.
  const batch = new Batch(kind, edition, (value) => form.replace(value), tellLine, () => {
    view.hidden = false;
    tellLine();
  });
  const extra = kind === "lattice"
    ? [field(say("示例", "Start from"), select([["", "–"], ["双肢格构柱", say("双肢", "two limbs")], ["三肢格构柱", say("三肢", "three limbs")], ["四肢格构柱", say("四肢", "four limbs")]], "", (table) => {
        if (kLimbs[table]) form.replace(kLimbs[table]);
      }))]
    : [edition.element];
  const drop = kind === "lattice" ? null : dropPlace(say("多个算例：CSV 或 JSON 文件", "Many cases: a CSV or JSON file"), ".csv,.json", ([file]) => {
    view.hidden = true;
    void batch.take(file!);
  });
  place.replaceChildren(el("div", { class: "formside" }, above, el("h1", {}, kindTitle(kind)), first ? null : unreadLink(), ...extra, form.element, drop, jump), reachable(el("div", { class: "answer" }, batch.element, view), say("结果", "the answer")));
  form.set(first ?? {});
  view.hidden = batch.resume();
  await question.ask();
}

// The answer to a question; its report, once opened, stays for that question.
function answerView(kind: Kind, answer: Answer, names: ResultNames, asked: string): (HTMLElement | string)[] {
  const report = answer.files["report.html"];
  const opened = kept("report", () => ({ of: "" }));
  const place = el("div");
  const close = () => {
    opened.of = "";
    place.replaceChildren();
    open!.focus();
  };
  const show = () => {
    opened.of = asked;
    place.replaceChildren(reportView(report!, close));
  };
  const open = report && button(say("计算书", "Report"), () => {
    show();
    place.scrollIntoView();
    place.querySelector("h2")!.focus();
  }, { class: "main" });
  if (report && opened.of === asked) show();
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
    el("div", { class: "beside-picture" }, el("div", { class: "blocks" }, figureTable(lattice.no, figureLines(lattice.properties)), ...limbs), picture(answer.files["picture.svg"], lattice.no)),
  ];
}

const kConnections = ["bolt", "fillet", "butt", "weld-group"] as const;

export async function connections(place: HTMLElement): Promise<void> {
  const asked = state()["kind"] ?? "bolt";
  const kind = kConnections.find((each) => each === asked);
  if (!kind) return place.replaceChildren(noSuch("kind", asked, [...kConnections]));
  const above = field(say("连接", "Connection"), select(kConnections.map((each) => [each, kindTitle(each)]), kind, (next) => choose({ kind: next, case: "" })));
  await checkView(place, kind, above);
}

export const members = (place: HTMLElement) => checkView(place, "member", null);
export const latticeColumns = (place: HTMLElement) => checkView(place, "lattice", null);
