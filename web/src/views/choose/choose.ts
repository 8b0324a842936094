// The lightest sections of chosen tables that pass a member's case.
import { styles as readStyles, tables } from "../../command/catalogue";
import { ask, lineOf, sentence, type Answer } from "../../command/client";
import type { Case } from "../../form/case";
import { caseInLink, unreadLink } from "../../form/case_link";
import { kExamples } from "../../form/examples";
import { Form } from "../../form/form";
import { readLists } from "../../form/guide";
import { schemaOf } from "../../form/schema";
import { button, computing, el, fault, field, noAnswer, picture } from "../../parts/dom";
import { Edition } from "../../parts/edition";
import { figure } from "../../parts/figure_table";
import { bare, percent } from "../../parts/figures";
import { fold } from "../../parts/fold";
import { oneStop, reachable } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { change, go, inOne, parted, startView, state } from "../../state/address";
import { kept } from "../../state/kept";
import { say } from "../../state/language";
import { checkName } from "../checks/verdict";
import { StyleChoices } from "./style_choice";

interface ChooseJson {
  tried: number;
  passing: number;
  refused?: number;
  refusals?: { table: string; no: string; rows: number; reason: string }[];
  rows: { table: string; no: string; style?: string; sizes?: number[]; mass: number; ratio: number; governs: string; warnings?: { key: string; text: string }[] }[];
}

const kFile = "case.json";
const kFirstTables = "热轧普通焊接H型钢,热轧窄翼缘H型钢";

function firstCase(edition: Edition): Case | null {
  const { section: _, edges: __, code: ___, ...rest } = kExamples.member;
  return caseInLink("member", rest, edition);
}

export async function choose(place: HTMLElement): Promise<void> {
  const isHere = startView();
  await readLists();
  const rolled = (await tables()).filter((table) => table.rows > 0);
  if (!isHere()) return;
  const chosen = new Set(parted(state()["tables"] ?? kFirstTables, ",").filter((name) => name !== "-"));
  const edition = new Edition(() => outdated(), false, () => form.remember());
  const first = firstCase(edition);
  const view = el("div", { class: "detail wide", "aria-live": "polite" });
  const note = el("p", { class: "note", role: "status" });
  // A name of the link's that no table has stands there too, for the command to refuse.
  const boxes = new Map([...new Set([...rolled.map((table) => table.name), ...chosen])].map((name) => {
    const box = el("input", { type: "checkbox", checked: chosen.has(name), onchange: () => {
      if (box.checked) chosen.add(name);
      else chosen.delete(name);
      change({ tables: chosen.size > 0 ? inOne([...chosen], ",") : "-" });
      outdated();
    } });
    return [name, box];
  }));
  const styles = new StyleChoices(await readStyles(), state()["styles"] ?? "", (text) => { change({ styles: text }); outdated(); });
  const top = el("input", { type: "text", inputmode: "numeric", value: parted(state()["top"] ?? "20", ",")[0], class: "short", oninput: () => { change({ top: inOne([top.value], ",") }); outdated(); } });
  const form: Form = new Form("member", schemaOf("member"), (value) => {
    change({ case: JSON.stringify(value) });
    outdated();
  }, edition, ["section"], () => outdated());
  const now = kept("choice", () => ({ isOutdated: false }));
  // What was chosen for another question does not stay beside this one.
  const outdated = () => {
    now.isOutdated = true;
    question.drop();
    blame("");
    note.textContent = "";
    view.replaceChildren(noAnswer(say("输入已改，请再按“选择”", "the question has changed: choose again")));
  };
  // Marks what the sentence names: a size of own sections, the rows, a table, else a field of the case, of which the
  // command says in which section's case it was. What leads there is the answer.
  const blame = (why: string): (() => void) => {
    const isOf = (words: RegExp) => words.test(why);
    const ofStyles = styles.blame(why);
    const named = [...boxes].find(([name]) => why.includes(`"${name}"`) || why.includes(`“${name}”`));
    const bad = isOf(/^(?:最多行数|Rows at most)/) ? top : isOf(/^(?:库中没有|没有可选|the store has no rows|nothing to choose)/) ? (named ?? [...boxes][0])?.[1] : undefined;
    for (const each of [top, ...boxes.values()]) each.setAttribute("aria-invalid", String(each === bad));
    form.blame(ofStyles || bad ? "" : why.replace(/^.*?(?:算例|case) [^,，]*[,，]\s*(?=\S+?\s*[:：])/s, ""));
    if (!bad) return ofStyles ? styles.mend : form.mend;
    return () => {
      bad.closest("details")?.setAttribute("open", "");
      bad.focus();
    };
  };
  const question = new Question(view, async () => {
    const [names, value, code] = [[...chosen], structuredClone(form.case), edition.asked];
    const answer = await ask(lineOf(["choose", ...(names.length > 0 ? [`--table=${names.join(",")}`] : []), ...styles.options(),
      `--top=${bare(top.value)}`, `--code=${code}`, "--json", "--plot", "plot.svg"], kFile), { [kFile]: JSON.stringify(value) });
    const found = answer.status <= 1 && answer.out !== "";
    return () => {
      const why = found ? "" : sentence(answer, kFile);
      const mend = blame(why);
      note.textContent = found ? sentence(answer) : "";
      view.replaceChildren(found ? table(JSON.parse(answer.out) as ChooseJson, value, code, answer) : noAnswer(why, mend));
    };
  });
  const start = async () => {
    now.isOutdated = false;
    view.replaceChildren(computing());
    await question.ask();
  };
  place.replaceChildren(
    el("div", { class: "formside" }, el("h1", {}, say("选择截面", "Choose")), first ? null : unreadLink(),
      styles.isDamaged && fault(say("链接中的自定义截面不完整，不能读出。", "The own sections in this link are damaged and cannot be read.")), edition.element,
      oneStop(fold("tables", say("截面表", "Tables"), [...boxes].map(([name, box]) => el("label", { class: "check" }, box, ` ${name}`)), innerWidth > 860), "input"),
      styles.element, field(say("最多行数", "Rows at most"), top), button(say("选择", "Choose"), start, { class: "main" }), note, form.element),
    reachable(el("div", { class: "answer" }, view), say("结果", "the answer")));
  form.set(first ?? {});
  if (now.isOutdated || styles.isDamaged) outdated();
  else await start();
}

const notesOf = (row: ChooseJson["rows"][number]) => (row.warnings ?? []).map((each) => `${each.key}: ${each.text}`);

function table(answer: ChooseJson, value: Case, code: string, whole: Answer): HTMLElement {
  const head = [say("表", "table"), say("型号", "no"), "kg/m", say("利用率", "ratio"), say("控制", "governs"), say("请注意", "note"), ""];
  const body = el("tbody");
  const common = answer.rows.map(notesOf).reduce((all, notes) => all.filter((note) => notes.includes(note)), answer.rows[0] ? notesOf(answer.rows[0]) : []);
  for (const row of answer.rows) {
    const open = button(say("验算", "Check"), () => go({ view: "members", ...(code === "2017" ? {} : { code }),
      case: JSON.stringify({ ...value, section: row.style ? { style: row.style, sizes: row.sizes } : { table: row.table, no: row.no } }) }));
    body.append(el("tr", {}, el("td", {}, row.table), el("th", { scope: "row" }, row.no), el("td", { class: "num" }, figure(row.mass)),
      el("td", { class: "num" }, figure(row.ratio, percent)), el("td", {}, checkName(row.governs, "member")),
      el("td", { class: "name" }, notesOf(row).filter((note) => !common.includes(note)).join("; ")), el("td", {}, open)));
  }
  const refused = (answer.refusals ?? []).map((each) => el("p", { class: "warn" }, say(`${each.table}：${each.rows} 个截面未能验算，如 ${each.no}：`, `${each.table}: ${each.rows} sections refused, such as ${each.no}: `), each.reason));
  return el("div", {}, ...refused, ...common.map((note) => el("p", { class: "warn" }, note)), el("p", { role: "status" }, say(`试算 ${answer.tried} 个截面，${answer.passing} 个满足`, `${answer.tried} sections tried, ${answer.passing} pass`)),
    el("div", { class: "scroll", tabindex: 0, role: "group", "aria-label": say("结果", "Results") }, el("table", { class: "figures list" }, el("thead", {}, el("tr", {}, ...head.map((each, i) => (each ? el("th", { scope: "col", class: i === 2 || i === 3 ? "num" : null }, each) : el("td", { class: "head" }))))), oneStop(body))),
    picture(whole.files["plot.svg"], say("质量与利用率", "mass against ratio")));
}
