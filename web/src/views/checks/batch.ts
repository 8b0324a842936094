// Many cases from a CSV or JSON file: how many pass, and all of them in a list, the worst first.
import { ask, lineOf, sentence, type Answer } from "../../command/client";
import type { Case } from "../../form/case";
import { kindTitle, type Kind } from "../../form/schema";
import { csvRows } from "../../formats/csv";
import { workbook } from "../../formats/workbook";
import { button, bytesOf, computing, download, el, fault } from "../../parts/dom";
import type { Edition } from "../../parts/edition";
import { shown } from "../../parts/figures";
import { Grid, type Column } from "../../parts/grid";
import { oneStop } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { say } from "../../state/language";
import { checkName, percent } from "./verdict";

// Columns whose cells are texts, also where they are written in digits.
const kTexts = ["id", "code", "pass", "governs", "refused", "warnings", "surface"];
// Columns that stand first, whatever their place in the command's answer.
const kFirst = ["case", "id", "code", "pass", "ratio", "utilisation", "governs", "refused", "warnings"];

// A file of cases as it was when it was dropped.
interface Cases {
  name: string;
  data: Promise<Uint8Array>;
}

let drawn: Batch | null = null;
let held: { kind: Kind; file: Cases } | null = null;

// The file of cases that is listed stays over the next drawing of its view.
export function holdCases(): void {
  held = drawn?.held() ?? null;
}

export class Batch {
  readonly element = el("div", { class: "batch", hidden: true });
  private file: Cases | null = null;
  private openings = 0;
  private readonly list = el("div");
  private readonly trouble = el("p", { class: "fault", role: "alert" });
  private readonly question: Question;

  // `opened` gets a case that is chosen in the list; `marked` is told when the list or its line changes, `closed`
  // when the list goes.
  constructor(private readonly kind: Kind, private readonly edition: Edition, private readonly opened: (value: Case) => void, marked: () => void, private readonly closed: () => void) {
    this.question = new Question(this.list, (isAsked) => this.ask(isAsked), marked);
    drawn = this;
  }

  // The verdict on all of them in a line.
  get line(): string {
    return this.list.querySelector(".box")?.textContent ?? say("没有结果", "no answer");
  }

  get isWaiting(): boolean {
    return this.question.isWaiting;
  }

  held(): typeof held {
    return this.file && this.element.isConnected ? { kind: this.kind, file: this.file } : null;
  }

  // Lists again what was held; false where nothing was.
  resume(): boolean {
    const file = held?.kind === this.kind ? held.file : null;
    held = null;
    if (file) void this.show(file);
    return file !== null;
  }

  take(dropped: File): Promise<void> {
    return this.show({ name: dropped.name, data: bytesOf(dropped) });
  }

  private async show(file: Cases): Promise<void> {
    this.file = file;
    this.list.replaceChildren(computing());
    await this.again();
    if (this.file !== file) return;
    this.element.scrollIntoView();
    this.element.querySelector<HTMLElement>("h2")?.focus();
  }

  // The file once more, by the edition that is chosen now.
  async again(): Promise<void> {
    if (!this.file) return;
    const close = button("×", () => this.close(), { class: "quiet", "aria-label": say("回到单个算例", "Back to the single case") });
    this.trouble.textContent = "";
    this.element.hidden = false;
    this.element.replaceChildren(el("h2", { tabindex: -1 }, this.file.name, " ", close), this.trouble, this.list);
    await this.question.ask();
  }

  // The form has changed: a row that is being opened does not take its place any more.
  formChanged(): void {
    ++this.openings;
  }

  private async ask(isAsked: () => boolean): Promise<() => void> {
    const [file, code] = [this.file!, this.edition.asked];
    const answer = await this.run(file, "--csv", "--sort", `--code=${code}`);
    const [head = [], ...rows] = csvRows(answer.out);
    const trouble = answer.err ? [fault(sentence(answer, nameOf(file)))] : [];
    const list = () => [summary(head, rows), by(code), ...trouble, ...this.listed(file.name, answer, head, rows, this.opener(file, code, isAsked))];
    return () => this.list.replaceChildren(...(rows.length > 0 ? list() : trouble));
  }

  private async run(file: Cases, ...words: string[]): Promise<Answer> {
    return ask(lineOf(["check", ...words], this.kind, nameOf(file)), { [nameOf(file)]: await file.data });
  }

  private close(): void {
    this.file = null;
    this.question.drop();
    this.element.hidden = true;
    this.element.replaceChildren();
    this.closed();
  }

  private listed(label: string, answer: Answer, head: string[], rows: string[][], open: (number: number) => Promise<void>): HTMLElement[] {
    const used = head.map((_, i) => i).filter((i) => rows.some((row) => row[i]));
    const order = [...kFirst.map((name) => head.indexOf(name)).filter((i) => used.includes(i)), ...used.filter((i) => !kFirst.includes(head[i]!))];
    const [names, lines] = [order.map((i) => head[i]!), rows.map((row) => order.map((i) => row[i]!))];
    const numeric = names.map((name, i) => !kTexts.includes(name) && lines.every((row) => row[i] === "" || !Number.isNaN(Number(row[i]))));
    const columns = names.map<Column>((name, i) => ({ name, numeric: numeric[i]!, written: writer(name, numeric[i]!) }));
    const pass = names.indexOf("pass");
    const grid = new Grid({ label, columns, rows: lines, look: (row) => (row[pass] === "true" ? null : "fail"),
      chosen: (row) => void open(Number(row[names.indexOf("case")])) });
    return [
      oneStop(el("div", { class: "tools" },
        button("CSV", () => download("checked.csv", answer.out)),
        button("XLSX", () => download("checked.xlsx", workbook({ name: kindTitle(this.kind), rows: [names, ...lines], numeric, heads: 1 }))))),
      el("p", { class: "note" }, say("选一行，在左边的表单中打开该算例。", "Choose a row to open its case in the form.")),
      grid.element,
    ];
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

const writer = (name: string, numeric: boolean): Column["written"] => {
  if (name === "pass") return (text) => (text === "true" ? `✓ ${say("满足", "passes")}` : text === "false" ? `✗ ${say("不满足", "fails")}` : say("拒绝", "refused"));
  if (name === "governs") return checkName;
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
    worst ? say(` · 最不利 ${worst[at("id")] || worst[at("case")]}：${percent(Number(worst[ratio]))}`, ` · worst ${worst[at("id")] || worst[at("case")]}: ${percent(Number(worst[ratio]))}`) : "");
}
