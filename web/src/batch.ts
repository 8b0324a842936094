// Many cases from a CSV or JSON file: how many pass, and all of them in a list, the worst first.
import { state } from "./address";
import { kindTitle } from "./checks";
import { ask, sentence } from "./client";
import { csvRows, csvText } from "./csv";
import { button, computing, download, el, fault } from "./dom";
import { shown } from "./figures";
import { caseOf, type Case } from "./form";
import { Grid, type Column } from "./grid";
import { oneStop } from "./keyboard";
import { say } from "./language";
import { schemaOf, type Kind } from "./schema";
import { checkName, percent } from "./verdict";
import { workbook } from "./workbook";

// Columns that stand first, whatever their place in the command's answer.
const kFirst = ["case", "id", "code", "pass", "ratio", "utilisation", "governs", "refused", "warnings"];

export class Batch {
  readonly element = el("div", { class: "batch", hidden: true });
  private name = "";
  private data: Uint8Array = new Uint8Array();

  // `opened` gets a case that is chosen in the list; `closed` is told when the list goes.
  constructor(private readonly kind: Kind, private readonly opened: (value: Case) => void, private readonly closed: () => void) {}

  async take(name: string, data: Uint8Array): Promise<void> {
    [this.name, this.data] = [name, data];
    await this.again();
    this.element.scrollIntoView();
    this.element.querySelector<HTMLElement>("h2")?.focus();
  }

  // The file once more, by the edition that is chosen now.
  async again(): Promise<void> {
    if (this.name === "") return;
    const file = this.isJson() ? "cases.json" : "cases.csv";
    const close = button("×", () => this.close(), { class: "quiet", "aria-label": say("回到单个算例", "Back to the single case") });
    const title = el("h2", { tabindex: -1 }, this.name, " ", close);
    this.element.hidden = false;
    this.element.replaceChildren(title, computing());
    const answer = await ask(["check", this.kind, file, "--csv", "--sort", "--code", state()["code"] ?? "2017"], { [file]: this.data });
    const [head = [], ...rows] = csvRows(answer.out);
    this.element.replaceChildren(title);
    if (rows.length > 0) this.element.append(summary(head, rows));
    if (answer.err) this.element.append(fault(sentence(answer, file)));
    if (rows.length > 0) this.element.append(...this.list(head, rows));
  }

  private isJson = () => this.name.toLowerCase().endsWith(".json");

  private close(): void {
    this.name = "";
    this.element.hidden = true;
    this.element.replaceChildren();
    this.closed();
  }

  private list(head: string[], rows: string[][]): HTMLElement[] {
    const used = head.map((_, i) => i).filter((i) => rows.some((row) => row[i]));
    const order = [...kFirst.map((name) => head.indexOf(name)).filter((i) => used.includes(i)), ...used.filter((i) => !kFirst.includes(head[i]!))];
    const [names, lines] = [order.map((i) => head[i]!), rows.map((row) => order.map((i) => row[i]!))];
    const numeric = names.map((_, i) => lines.every((row) => row[i] === "" || !Number.isNaN(Number(row[i]))));
    const columns = names.map<Column>((name, i) => ({ name, numeric: numeric[i]!, written: writer(name, numeric[i]!) }));
    const pass = names.indexOf("pass");
    const grid = new Grid({ label: this.name, columns, rows: lines, look: (row) => (row[pass] === "true" ? null : "fail"),
      chosen: (row) => this.open(Number(row[names.indexOf("case")])) });
    return [
      oneStop(el("div", { class: "tools" },
        button("CSV", () => download("checked.csv", "\ufeff" + csvText([head, ...rows]))),
        button("XLSX", () => download("checked.xlsx", workbook({ name: kindTitle(this.kind), rows: [names, ...lines], numeric, heads: 1 }))))),
      el("p", { class: "note" }, say("选一行，在左边的表单中打开该算例。", "Choose a row to open its case in the form.")),
      grid.element,
    ];
  }

  // The case of that number, from 1, as the form has it; nothing where the file's columns are not the form's.
  private open(number: number): void {
    const text = new TextDecoder().decode(this.data);
    if (this.isJson()) {
      const all = JSON.parse(text) as Case | Case[];
      return this.opened((Array.isArray(all) ? all[number - 1] : all) ?? {});
    }
    const [head = [], ...rows] = csvRows(text).filter((row) => row.some((cell) => cell.trim()));
    const value = caseOf(schemaOf(this.kind), head, rows[number - 1] ?? []);
    if (value) this.opened(value);
  }
}

const writer = (name: string, numeric: boolean): Column["written"] => {
  if (name === "pass") return (text) => (text === "true" ? `✓ ${say("满足", "passes")}` : text === "false" ? `✗ ${say("不满足", "fails")}` : say("拒算", "refused"));
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
    say(` · ${cases(rows)} 个算例：${failed} 个不满足，${refused} 个拒算`, ` · ${cases(rows)} cases: ${failed} fail, ${refused} refused`),
    worst ? say(` · 最不利 ${worst[at("id")] || worst[at("case")]}：${percent(Number(worst[ratio]))}`, ` · worst ${worst[at("id")] || worst[at("case")]}: ${percent(Number(worst[ratio]))}`) : "");
}
