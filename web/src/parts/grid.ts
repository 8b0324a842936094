// A table of any length, of which the rows in sight alone are in the page. Arrow keys move the
// chosen row, the headings sort.
import { say } from "../state/language";
import { el } from "./dom";
import { oneStop } from "./keyboard";

export interface Column {
  name: string;
  title?: string;
  numeric: boolean;
  written?: (cell: string) => string; // for the eye; the cell itself is in its tip
}

interface Wishes {
  label: string;
  columns: Column[];
  rows: string[][];
  chosen?: (row: string[]) => void;
  marked?: { has(row: string[]): boolean; toggle(row: string[]): void };
  look?: (row: string[]) => string | null; // a class of the row's
  isChosen?: (row: string[]) => boolean;
  sort?: string; // "NAME" or "NAME:desc"
  sorted?: (sort: string) => void;
}

const kRowHeight = 30;
const kMargin = 8; // rows above and below what is in sight
const kNear = 6; // of them, when the next are drawn: few at a time, each frame has its share

const number = (text: string) => (text.trim() === "" ? Number.NEGATIVE_INFINITY : Number(text));

export function compareCells(a: string, b: string, numeric: boolean): number {
  const [x, y] = [number(a), number(b)];
  if (numeric && !Number.isNaN(x) && !Number.isNaN(y)) return x - y || (a < b ? -1 : a > b ? 1 : 0);
  return a.localeCompare(b, "zh-CN", { numeric: true });
}

export class Grid {
  readonly element: HTMLElement;
  private readonly body = el("tbody", { role: "rowgroup" });
  private rows: string[][];
  private order: string[][] = [];
  private current = -1;
  private drawn: [first: number, last: number] = [0, 0];
  private readonly lines = new Map<number, HTMLElement>(); // those that are drawn, by their places
  private readonly above: HTMLElement; // in place of the rows that are not drawn
  private readonly below: HTMLElement;
  private sort: string;
  private readonly headings: HTMLElement[] = [];

  constructor(private readonly wishes: Wishes) {
    this.rows = wishes.rows;
    this.above = gap();
    this.below = gap();
    this.sort = wishes.sort ?? "";
    const head = el("tr", { role: "row" });
    if (wishes.marked) head.append(el("th", { role: "columnheader", scope: "col" }, el("span", { class: "hidden" }, say("比较", "compare"))));
    const widths = wishes.marked ? [34] : [];
    wishes.columns.forEach((column, i) => {
      const longest = wishes.rows.reduce((most, row) => Math.max(most, width(written(column, row[i] ?? ""))), width(column.name) + 2);
      widths.push(Math.min(Math.max(longest, 5), 34) * 7.6 + 20);
      const sorter = el("button", { type: "button", title: column.title, onclick: () => this.sortBy(column.name) }, column.name);
      const heading = el("th", { role: "columnheader", scope: "col", class: column.numeric ? "num" : null }, sorter);
      this.headings.push(heading);
      head.append(heading);
    });
    const table = el(
      "table",
      // Every row is laid out by itself: a table would lay out all of them for each that comes.
      { role: "grid", "aria-label": wishes.label, style: `--columns: ${widths.map((each) => `minmax(${each}px, ${each}fr)`).join(" ")}; min-width: ${widths.reduce((sum, each) => sum + each)}px` },
      el("thead", { role: "rowgroup" }, oneStop(head)),
      this.above,
      this.body,
      this.below,
    );
    this.element = el("div", { class: "grid", tabindex: 0, role: "group", "aria-label": wishes.label, onkeydown: (event: KeyboardEvent) => this.key(event) }, table);
    const moved = () => {
      this.element.classList.toggle("cut", this.element.scrollLeft + this.element.clientWidth < this.element.scrollWidth - 1);
      if (!this.isDrawn()) this.fill();
    };
    this.element.addEventListener("scroll", moved, { passive: true });
    new ResizeObserver(moved).observe(this.element);
    this.show(wishes.rows);
  }

  // Other rows under the same headings; the chosen one stays so.
  show(rows: string[][]): void {
    this.rows = rows;
    const [name, way] = this.sort.split(/:(?=desc$)/);
    const at = this.wishes.columns.findIndex((column) => column.name === name);
    this.order = at < 0 ? rows : [...rows].sort((a, b) => compareCells(a[at] ?? "", b[at] ?? "", this.wishes.columns[at]!.numeric));
    if (at >= 0 && way) this.order.reverse();
    this.headings.forEach((heading, i) => {
      heading.setAttribute("aria-sort", i !== at ? "none" : way ? "descending" : "ascending");
    });
    this.current = this.wishes.isChosen ? this.order.findIndex(this.wishes.isChosen) : -1;
    this.element.firstElementChild!.setAttribute("aria-rowcount", String(rows.length + 1));
    this.draw();
  }

  // The rows as they are sorted.
  get shown(): string[][] {
    return this.order;
  }

  reveal(): void {
    if (this.current < 0) return;
    const top = this.current * kRowHeight;
    const seen = this.element.clientHeight - 2 * kRowHeight;
    if (top < this.element.scrollTop) this.element.scrollTop = top;
    else if (top > this.element.scrollTop + seen) this.element.scrollTop = top - seen;
    if (!this.isDrawn()) this.fill();
  }

  private sortBy(name: string): void {
    this.sort = this.sort === name ? `${name}:desc` : this.sort === `${name}:desc` ? "" : name;
    this.wishes.sorted?.(this.sort);
    this.show(this.rows);
  }

  private choose(at: number): void {
    const row = this.order[at];
    if (!row) return;
    this.lines.get(this.current)?.setAttribute("aria-selected", "false");
    this.current = at;
    this.reveal();
    this.lines.get(at)?.setAttribute("aria-selected", "true");
    this.wishes.chosen?.(row);
  }

  private key(event: KeyboardEvent): void {
    const page = Math.max(1, Math.floor(this.element.clientHeight / kRowHeight) - 2);
    const steps: Record<string, number> = { ArrowDown: 1, ArrowUp: -1, PageDown: page, PageUp: -page, Home: -this.order.length, End: this.order.length };
    const step = steps[event.key];
    if (event.key === " " && this.wishes.marked && event.target === this.element) {
      const row = this.order[this.current];
      if (row) this.wishes.marked.toggle(row);
      this.draw();
    } else if (step === undefined || !this.wishes.chosen) {
      return;
    } else {
      this.choose(Math.min(Math.max(this.current + step, 0), this.order.length - 1));
    }
    event.preventDefault();
  }

  // The rows in sight and so many above and below.
  private around(more: number): [first: number, last: number] {
    const top = Math.floor(this.element.scrollTop / kRowHeight);
    const rows = Math.ceil((this.element.clientHeight || 600) / kRowHeight);
    return [Math.max(0, top - more), Math.min(this.order.length, top + rows + more)];
  }

  private isDrawn(): boolean {
    const [first, last] = this.around(kNear);
    return this.drawn[0] <= first && last <= this.drawn[1];
  }

  // Draws what is in sight anew.
  draw(): void {
    this.body.replaceChildren();
    this.lines.clear();
    this.fill();
  }

  // Adds the rows that have come near and takes away those that have gone; the others stay as they are.
  private fill(): void {
    const [first, last] = (this.drawn = this.around(kMargin));
    for (const [at, line] of this.lines) {
      if (at >= first && at < last) continue;
      line.remove();
      this.lines.delete(at);
    }
    setGap(this.above, first);
    setGap(this.below, this.order.length - last);
    let next: HTMLElement | null = null;
    for (let at = last - 1; at >= first; --at) {
      let line = this.lines.get(at);
      if (!line) {
        line = this.line(this.order[at]!, at);
        this.lines.set(at, line);
        this.body.insertBefore(line, next);
      }
      next = line;
    }
  }

  private line(row: string[], at: number): HTMLElement {
    const { columns, marked, chosen, look } = this.wishes;
    const line = el("tr", { role: "row", "aria-rowindex": at + 2, "aria-selected": chosen ? String(at === this.current) : null, class: look?.(row) });
    if (chosen) line.addEventListener("click", () => this.choose(at));
    if (marked) {
      const box = el("input", { type: "checkbox", tabindex: -1, "aria-label": `${say("比较", "compare")} ${row[0] ?? ""}` });
      box.checked = marked.has(row);
      box.onclick = (event) => event.stopPropagation();
      box.onchange = () => marked.toggle(row);
      line.append(el("td", { role: "gridcell" }, box));
    }
    columns.forEach((column, i) => {
      const cell = row[i] ?? "";
      const text = written(column, cell);
      line.append(el("td", { role: "gridcell", class: column.numeric ? "num" : null, title: text !== cell || text.length > 24 ? cell : null }, text));
    });
    return line;
  }
}

const gap = (): HTMLElement => el("tbody", { "aria-hidden": "true" });

function setGap(gap: HTMLElement, rows: number): void {
  gap.hidden = rows === 0;
  gap.style.height = `${rows * kRowHeight}px`;
}

const written = (column: Column, cell: string): string => column.written?.(cell) ?? cell;

// Of a text in figures' widths: Chinese characters take twice the room, capitals somewhat more than figures.
function width(text: string): number {
  let sum = 0;
  for (const ch of text) sum += ch > "\u2e7f" ? 2 : ch >= "A" && ch <= "Z" ? 1.35 : 1;
  return sum;
}
