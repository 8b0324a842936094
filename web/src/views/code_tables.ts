// Figures of the design code: a form from the command's own help, the answer with its source, and
// the table with the asked cell marked, every cell of it asked from the command.
import { ask, lineOf, sentence, type Answer, type Line } from "../command/client";
import { copyButton, el, field, noAnswer, noSuch, select } from "../parts/dom";
import { Edition } from "../parts/edition";
import { bare, shown } from "../parts/figures";
import { reachable } from "../parts/keyboard";
import { Question } from "../parts/question";
import { change, choose, inOne, parted, startView, state } from "../state/address";
import { say } from "../state/language";

interface CodeJson {
  value: unknown;
  unit: string;
  source: string;
  note?: string;
}

// What to begin with, by question.
const kFirst: Record<string, string> = {
  steel: "Q345 20 f", eps: "Q345", weld: "Q345 20 ffw", bolt: "C 4.8 fv", preload: "10.9 20", slip: "1 Q345", hole: "standard 20",
  spacing: "pitch-least 22 12", area: "20", slender: "Q345 upper", slenderness: "compression", width: "flange Q345 60",
  "width-moments": "web Q345 1", "width-beam": "flange Q345", phi: "60 345 b", phib: "uniform-upper 32 6", mu: "nosway 1 1",
  "mu-step": "free 1 0.5", "mu-step2": "free 1 1 0.2 0.2", "mu-taper": "0.1 1", "section-class": "flange 10 Q345",
  class: "welded-i-flame-cut x", "class-thick": "1 x", gamma: "0 x S1", fatigue: "Z4 C",
};
// What differs in the edition of 2003.
const kFirst2003: Record<string, string> = { gamma: "0 x", fatigue: "4 C", "width-moments": "web Q345 1 60" };
const kGrades = ["Q235", "Q345", "Q355", "Q390", "Q420", "Q460", "Q345GJ"];
const kSpans = ["16", "40", "63", "80", "100"]; // thicknesses of steel, mm

// The lists of arguments along which a question's table runs, by the argument's place.
const kAxes: Record<string, Record<number, string[]>> = {
  steel: { 0: kGrades, 1: kSpans },
  weld: { 0: kGrades, 1: kSpans },
  eps: { 0: kGrades },
  preload: { 0: ["8.8", "10.9"], 1: ["16", "20", "22", "24", "27", "30"] },
  slip: { 0: ["0", "1", "2"], 1: kGrades },
  phi: { 0: ["20", "40", "60", "80", "100", "120", "150", "200", "250"], 2: ["a", "b", "c", "d"] },
  mu: { 1: ["0", "0.1", "0.3", "0.5", "1", "2", "5", "10"], 2: ["0", "0.1", "0.3", "0.5", "1", "2", "5", "10"] },
  hole: { 0: ["standard", "oversize", "slot-across", "slot-along"] },
  area: { 0: ["12", "16", "20", "22", "24", "27", "30", "36"] },
};

// Of the others it runs along the choices that the command's help lists, and along the grades.
function axesOf(question: string, names: string[]): Record<number, string[]> {
  const lists = names.map((name) => (name.includes("|") ? name.replace(/[[\]]/g, "").split("|") : /^\[?GRADE/.test(name) ? kGrades : null));
  return kAxes[question] ?? Object.fromEntries(lists.flatMap((list, at) => (list ? [[at, list] as const] : [])).slice(0, 2));
}

// The questions and what each means: the lines under the last heading of the help.
async function questions(): Promise<[name: string, meaning: string][]> {
  const { status, out: help, err } = await ask(["code", "--help"]);
  if (status !== 0) throw new Error(err);
  return [...help.matchAll(/^ {2}([a-z][a-z0-9-]+) {2,}(\S.*)$/gm)].map((line) => [line[1]!, line[2]!]);
}

// "GRADE T [f|fv|fce]" of the help, and what stands below it.
async function wanted(question: string): Promise<{ arguments: string[]; more: string }> {
  const help = (await ask(["code", question, "--help"])).out;
  const line = /^ {2}ARGUMENTS[^\n]*?\.\.\.\s+(.+)$/m.exec(help)?.[1] ?? "";
  return { arguments: line.match(/\[[^\]]*\]|\S+/g) ?? [], more: help.split(/\n\n/).slice(3).join("\n").trim() };
}

export async function codeTables(place: HTMLElement): Promise<void> {
  const isHere = startView();
  const list = await questions();
  const question = state()["ask"] ?? "steel";
  if (!list.some(([name]) => name === question)) return place.replaceChildren(noSuch("ask", question, list.map(([name]) => name)));
  const { arguments: names, more } = await wanted(question);
  if (!isHere()) return;
  const given = parted(state()["args"] ?? (state()["code"] === "2003" ? kFirst2003[question] : null) ?? kFirst[question] ?? "", " ");
  const view = reachable(el("div", { class: "detail wide", "aria-live": "polite" }), say("结果", "the answer"));
  const edition = new Edition(() => void figures.ask(), false);
  const controls = names.map((name, i) => {
    const called = name.replace(/[[\]]/g, "");
    const choices = called.split("|");
    if (choices.length === 1) return { called, isMust: name === called, control: el("input", { type: "text", value: given[i] ?? "", oninput: () => keep() }) };
    const listed = name === called ? choices : ["", ...choices];
    const control = select(listed.map((each) => [each, each || "–"]), given[i] ?? "", () => keep());
    return { called: choices.length > 3 ? say("量", "figure") : called, isMust: name === called, control };
  });
  let surplus = given.slice(names.length); // of a link, for the command to refuse
  const values = () => [...controls.map(({ control }) => control.value), ...surplus];
  // Arguments go by their places: none may be left out before another.
  const missing = (asked: string[]) => controls.find(({ isMust }, i) => asked[i] === "" && (isMust || asked.slice(i).some(Boolean)));
  const keep = () => {
    surplus = [];
    change({ ask: question, args: inOne(values(), " ") });
    void figures.ask();
  };
  const figures = new Question(view, async (isAsked) => {
    const [asked, code] = [values().map(bare), edition.asked];
    const line = (given: string[]) => lineOf(["code", question, `--code=${code}`, "--json"], ...given.filter((value) => value !== ""));
    const lacks = missing(asked);
    const answer = lacks ? null : await ask(line(asked));
    return () => {
      const why = lacks ? say(`${lacks.called}：没有给出；请给出`, `${lacks.called}: is missing; give it`) : answer!.status === 0 ? "" : sentence(answer!);
      const bad = lacks ?? controls.find(({ called }) => why.startsWith(`${called}:`) || why.startsWith(`${called}：`));
      for (const each of controls) each.control.setAttribute("aria-invalid", String(each === bad));
      if (why) return view.replaceChildren(noAnswer(why, bad ? () => bad.control.focus() : null));
      const around = el("div");
      view.replaceChildren(figure(answer!), around);
      void table(around, axesOf(question, names), asked, line, isAsked);
    };
  });
  const what = select(list.map(([name, meaning]) => [name, `${name} · ${meaning}`]), question, (next) => choose({ ask: next, args: "" }));
  place.replaceChildren(
    el("form", { class: "form", onsubmit: (event: Event) => event.preventDefault() }, el("h1", {}, say("规范表", "Code tables")),
      field(say("查什么", "Figure"), what), el("p", { class: "note" }, list.find(([name]) => name === question)?.[1] ?? ""), ...controls.map(({ called, control }) => field(called, control)),
      edition.element, more && el("p", { class: "note" }, more)),
    view);
  await figures.ask();
}

function figure(answer: Answer): HTMLElement {
  const { value, unit, source, note } = JSON.parse(answer.out) as CodeJson;
  const text = Array.isArray(value) ? value.map(shown).join(", ") : shown(value);
  return el("div", { class: "answerfigure" }, el("p", { class: "big", title: String(value) }, text, el("span", { class: "unit" }, ` ${unit}`)), el("p", { class: "note" }, source), note && el("p", { class: "warn" }, note),
    copyButton(say("复制", "Copy"), () => String(value)));
}

// The list with the asked value in its place, so that what is marked is what was asked.
function among(list: string[], value = ""): string[] {
  if (list.includes(value) || value === "") return list;
  const numbers = [...list, value].every((each) => !Number.isNaN(Number(each)));
  return numbers ? [...list, value].sort((a, b) => Number(a) - Number(b)) : [...list, value];
}

// Fills the place with the table, row by row, as long as it is asked for.
async function table(place: HTMLElement, axes: Record<number, string[]>, values: string[], line: (given: string[]) => Line, isAsked: () => boolean): Promise<void> {
  const [first, second] = Object.entries(axes).map(([at, list]) => [Number(at), list] as const);
  if (!first) return;
  const [rowAt, columnAt] = [first[0], second?.[0] ?? -1];
  const [rows, columns] = [among(first[1], values[rowAt]), second ? among(second[1], values[columnAt]) : [""]];
  const body = el("tbody");
  const head = el("tr", {}, el("td"), ...columns.map((column) => el("th", { scope: "col", class: "num" }, column || say("值", "value"))));
  const whole = el("div", { class: "scroll", tabindex: 0, role: "group", "aria-label": say("表", "Table") },
    el("table", { class: "figures list" }, el("caption", {}, say("与其他值并列（所查的一格加底色）", "Beside others, the asked cell marked")), el("thead", {}, head), body));
  const lines = rows.map((row) => el("tr", {}, el("th", { scope: "row" }, row), ...columns.map(() => el("td", { class: "num" }, "…"))));
  body.append(...lines);
  place.replaceChildren(whole);
  for (const [i, row] of rows.entries()) {
    const answers = await Promise.all(columns.map((column) => {
      const given = [...values];
      given[rowAt] = row;
      if (columnAt >= 0) given[columnAt] = column;
      return ask(line(given));
    }));
    if (!isAsked()) return;
    answers.forEach((answer, at) => {
      const cell = lines[i]!.children[at + 1]!;
      const value = answer.status === 0 ? (JSON.parse(answer.out) as CodeJson).value : null;
      cell.textContent = shown(value);
      if (value !== null) cell.setAttribute("title", String(value));
      if (row !== values[rowAt] || (columnAt >= 0 && columns[at] !== values[columnAt])) return;
      cell.classList.add("marked");
      cell.setAttribute("aria-current", "true");
    });
  }
}
