// Many cases from a CSV or JSON file: how many pass, and all of them in a list, the worst first.
import { ask, lineOf, sentence, type Answer } from "../../command/client";
import type { Case } from "../../form/case";
import { kindTitle, type Kind } from "../../form/schema";
import { csvRows } from "../../formats/csv";
import { workbook } from "../../formats/workbook";
import { button, bytesOf, computing, download, el, fault } from "../../parts/dom";
import type { Edition } from "../../parts/edition";
import { figure } from "../../parts/figure_table";
import { percent, shown } from "../../parts/figures";
import { Grid, type Column } from "../../parts/grid";
import { oneStop } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { kept } from "../../state/kept";
import { say } from "../../state/language";
import { checkName, isRatio } from "./verdict";

// Columns whose cells are texts, also where they are written in digits.
const kTexts = ["id", "code", "pass", "governs", "refused", "warnings", "surface"];
// Columns that stand first, whatever their place in the command's answer.
const kFirst = ["case", "id", "code", "pass", "ratio", "utilisation", "governs", "refused", "warnings"];

// A file of cases as it was when it was dropped.
interface Cases {
  name: string;
  data: Promise<Uint8Array>;
}

// What is listed.
interface Listed {
  file: Cases | null;
  isAlone: boolean; // without the answer to the form's case beside it
  sort: string;
  chosen: string; // the case's number in the file
}
const kNone: Listed = { file: null, isAlone: false, sort: "", chosen: "" };

export class Batch {
  readonly element = el("div", { class: "batch", hidden: true });
  private readonly now = kept("cases", () => ({ ...kNone }));
  private openings = 0;
  private readonly list = el("div");
  private readonly trouble = el("p", { class: "fault", role: "alert" });
  private readonly question: Question;

  // `opened` gets a case that is chosen in the list; `marked` is told when the list or its line changes, `closed`
  // when the list goes.
  constructor(private readonly kind: Kind, private readonly edition: Edition, private readonly opened: (value: Case) => void, marked: () => void, private readonly closed: () => void) {
    this.question = new Question(this.list, (isAsked) => this.ask(isAsked), marked);
  }

  // The verdict on all of them in a line.
  get line(): string {
    return this.list.querySelector(".box")?.textContent ?? say("没有结果", "no answer");
  }

  get isWaiting(): boolean {
    return this.question.isWaiting;
  }

  // Lists again what the view listed before it was drawn anew; whether it stood there alone.
  resume(): boolean {
    void this.again();
    return this.now.isAlone;
  }

  async take(dropped: File): Promise<void> {
    const file = { name: dropped.name, data: bytesOf(dropped) };
    file.data.catch(() => {}); // said when it is asked for
    Object.assign(this.now, { ...kNone, file, isAlone: true });
    this.list.replaceChildren(computing());
    await this.again();
    const busy = document.activeElement?.closest("input, select") ?? null; // with the form, meanwhile
    if (this.now.file !== file || busy) return;
    this.element.scrollIntoView();
    this.element.querySelector<HTMLElement>("h2")?.focus();
  }

  // The file once more, by the edition that is chosen now.
  async again(): Promise<void> {
    if (!this.now.file) return;
    const close = button("×", () => this.close(), { class: "quiet", "aria-label": say("回到单个算例", "Back to the single case") });
    this.trouble.textContent = "";
    this.element.hidden = false;
    this.element.replaceChildren(el("h2", { tabindex: -1 }, this.now.file.name, " ", close), this.trouble, this.list);
    await this.question.ask();
  }

  // The form has changed, and its answer stands beside the list: a row that is being opened does not take its place
  // any more.
  formChanged(): void {
    ++this.openings;
    this.now.isAlone = false;
  }

  private async ask(isAsked: () => boolean): Promise<() => void> {
    const [file, code] = [this.now.file!, this.edition.asked];
    const answer = await this.run(file, "--csv", "--sort", `--code=${code}`);
    const [head = [], ...rows] = csvRows(answer.out);
    const trouble = answer.err ? [fault(sentence(answer, nameOf(file)))] : [];
    return () => {
      if (rows.length === 0) return this.list.replaceChildren(...trouble);
      this.list.replaceChildren(summary(head, rows), by(code), ...trouble);
      this.addRows(file.name, answer, head, rows, this.opener(file, code, isAsked));
    };
  }

  private async run(file: Cases, ...words: string[]): Promise<Answer> {
    return ask(lineOf(["check", ...words], this.kind, nameOf(file)), { [nameOf(file)]: await file.data });
  }

  private close(): void {
    Object.assign(this.now, kNone);
    this.question.drop();
    this.element.hidden = true;
    this.element.replaceChildren();
    this.closed();
  }

  private addRows(label: string, answer: Answer, head: string[], rows: string[][], open: (number: number) => Promise<void>): void {
    const used = head.map((_, i) => i).filter((i) => rows.some((row) => row[i]));
    const order = [...kFirst.map((name) => head.indexOf(name)).filter((i) => used.includes(i)), ...used.filter((i) => !kFirst.includes(head[i]!))];
    const [names, lines] = [order.map((i) => head[i]!), rows.map((row) => order.map((i) => row[i]!))];
    const numeric = names.map((name, i) => !kTexts.includes(name) && lines.every((row) => row[i] === "" || !Number.isNaN(Number(row[i]))));
    const columns = names.map<Column>((name, i) => ({ name, numeric: numeric[i]!, written: writer(this.kind, name, numeric[i]!) }));
    const [pass, number] = [names.indexOf("pass"), names.indexOf("case")];
    const grid = new Grid({ label, columns, rows: lines, look: (row) => (row[pass] === "true" ? null : "fail"),
      sort: this.now.sort, sorted: (sort) => (this.now.sort = sort), isChosen: (row) => row[number] === this.now.chosen,
      chosen: (row) => void open(Number((this.now.chosen = row[number]!))) });
    this.list.append(
      oneStop(el("div", { class: "tools" },
        button("CSV", () => download("checked.csv", answer.out)),
        button("XLSX", () => download("checked.xlsx", workbook({ name: kindTitle(this.kind), rows: [names, ...lines], numeric, heads: 1 }))))),
      el("p", { class: "note" }, say("选一行，在左边的表单中打开该算例。", "Choose a row to open its case in the form.")),
      grid.element);
    grid.reveal();
  }

  // Opens a case by its number, from 1, as the command has read it and by the edition of the list.
  private opener(file: Cases, code: string, isAsked: () => boolean): (number: number) => Promise<void> {
    let cases: Promise<Answer> | null = null;
    return async (number) => {
      const mine = ++this.openings;
      const { out } = await (cases ??= this.run(file, "--cases"));
      if (mine !== this.openings || !isAsked()) return;
      const value = out === "" ? null : (JSON.parse(out) as (Case | null)[])[number - 1];
      this.trouble.textContent = value ? "" : say(`第 ${number} 个算例不能读出，见“refused”一列；请在文件中改正`, `case ${number} cannot be read, see the column "refused"; mend it in the file`);
      if (value) this.opened({ code, ...value });
    };
  }
}

const nameOf = (file: Cases): string => (file.name.toLowerCase().endsWith(".json") ? "cases.json" : "cases.csv");

const by = (code: string): HTMLElement => el("p", { class: "note" },
  code === "both" ? say("没有给出版本的算例：两版", "Cases that name no edition: by both") : say(`没有给出版本的算例：GB 50017-${code}`, `Cases that name no edition: by GB 50017-${code}`));

const writer = (kind: Kind, name: string, numeric: boolean): Column["written"] => {
  if (name === "pass") return (text) => (text === "true" ? `✓ ${say("满足", "passes")}` : text === "false" ? `✗ ${say("不满足", "fails")}` : say("拒绝", "refused"));
  if (name === "governs") return (text) => checkName(text, kind);
  if (isRatio(kind, name)) return (text) => (text === "" ? "" : percent(Number(text)));
  return numeric ? (text) => (text === "" ? "" : shown(Number(text))) : undefined;
};

// How many cases fail or were refused, and the worst.
function summary(head: string[], rows: string[][]): HTMLElement {
  const at = (name: string) => head.indexOf(name);
  const cases = (of: string[][]) => new Set(of.map((row) => row[at("case")])).size;
  const refused = cases(rows.filter((row) => row[at("refused")]));
  const failed = cases(rows.filter((row) => row[at("pass")] === "false"));
  const ratio = at("ratio") >= 0 && at("utilisation") < 0 ? at("ratio") : at("utilisation");
  const worst = rows.find((row) => row[ratio]);
  const good = failed + refused === 0;
  return el("p", { class: good ? "box pass" : "box fail", role: "status" },
    el("b", {}, good ? say("全部满足", "all pass") : say("不全满足", "not all pass")),
    say(` · ${cases(rows)} 个算例：${failed} 个不满足，${refused} 个拒绝`, ` · ${cases(rows)} cases: ${failed} fail, ${refused} refused`),
    ...(worst ? [say(` · 最不利 ${worst[at("id")] || worst[at("case")]}：`, ` · worst ${worst[at("id")] || worst[at("case")]}: `), figure(Number(worst[ratio]), percent)] : []));
}
