// A form made from a schema: edits a case and knows its fields by their paths, as the command's
// sentences name them. What is empty is left out of the case.
import { button, el, field as labelled, newId, select } from "../parts/dom";
import type { Edition } from "../parts/edition";
import { signParts } from "../parts/figures";
import { fold } from "../parts/fold";
import { keepFocus, oneStop } from "../parts/keyboard";
import { kept } from "../state/kept";
import { say } from "../state/language";
import { differences, get, pathText, put, same, textOf, valueOf, type Case } from "./case";
import { byWay, hasPlace, listOf, settled, styleOf, wayOf, ways, type Choices, type Way } from "./guide";
import { isType, wordsOf, type Kind, type Schema } from "./schema";

// The ways back and forth, as JSON of the case and its edition, and what they need beside the case.
interface Steps {
  past: string[];
  undone: string[];
  typedIn: string; // the field of the last step: what is typed into one field is one step
  ways: Map<Way, Record<string, unknown>>; // sections as they were before another way
}

const kHead = ["id", "project", "date", "calculated", "checked", "approved"];

export class Form {
  readonly element = el("form", { class: "form" });
  private readonly body = el("div");
  private readonly steps = kept("steps", (): Steps => ({ past: [], undone: [], typedIn: "", ways: new Map() }));
  private fields = new Map<string, { control: HTMLElement; note: HTMLElement }>();
  private value: Case = {};
  private readonly choices = new Map<string, number>(); // how often each field was chosen in

  // `edition` stands above the form; `left`: keys that the form does without; `choosing` is told of a choice that will change the case when what
  // belongs to it is known.
  constructor(
    private readonly kind: Kind,
    private readonly schema: Schema,
    private readonly changed: (value: Case) => void,
    private readonly edition: Edition | null,
    private readonly left: string[] = [],
    private readonly choosing: () => void = () => {},
  ) {
    this.element.onsubmit = (event) => event.preventDefault();
    this.element.onkeydown = (event) => {
      const key = event.key.toLowerCase();
      if (!(event.ctrlKey || event.metaKey) || !["z", "y"].includes(key)) return;
      event.preventDefault();
      if (key === "y" || event.shiftKey) this.redo();
      else this.undo();
    };
    this.element.onfocusout = () => (this.steps.typedIn = "");
    this.element.append(
      oneStop(el("div", { class: "tools" },
        button(say("撤销", "Undo"), () => this.undo(), { title: "Ctrl+Z" }),
        button(say("重做", "Redo"), () => this.redo(), { title: "Ctrl+Y" }),
        button(say("清空", "Clear"), () => this.replace({})))),
      this.body);
  }

  get case(): Case {
    return this.value;
  }

  set(value: Case): void {
    this.value = structuredClone(value);
    this.draw();
  }

  // Another case, by the edition that it names; what stood there before can be had back.
  replace(value: Case): void {
    this.remember();
    this.set(this.edition?.take(value) ?? value);
    this.changed(this.value);
  }

  undo(): void {
    this.step(this.steps.past, this.steps.undone);
  }

  redo(): void {
    this.step(this.steps.undone, this.steps.past);
  }

  private step(from: string[], to: string[]): void {
    const other = from.pop();
    if (other === undefined) return;
    to.push(this.now());
    this.steps.typedIn = "";
    const [value, code] = JSON.parse(other) as [Case, string | null];
    if (code !== null) this.edition?.set(code);
    this.set(value);
    this.changed(this.value);
  }

  // Shows a sentence at the field that it names, or above all.
  blame(sentence: string): void {
    for (const { control, note } of this.fields.values()) {
      control.removeAttribute("aria-invalid");
      note.textContent = "";
    }
    if (!sentence) return;
    const found = this.named(sentence).map((path) => this.fields.get(path)).find(Boolean) ?? this.fields.get("");
    found?.control.setAttribute("aria-invalid", "true");
    if (!found) return;
    found.note.textContent = sentence;
    for (let at = found.note.closest("details"); at; at = at.parentElement!.closest("details")) at.open = true;
  }

  // The places that a sentence may name, the likeliest first. The command calls a combination by its id, else by its
  // number from 1, also where what is wrong stands beside the combinations.
  private named(sentence: string): string[] {
    const [, name = "", key] = /^cases\[(.*?)\]\.([^\s:：[\]]+)\s*[:：]/s.exec(sentence) ?? [];
    if (key === undefined) {
      const place = /^(?:[^:：]*(?:case|算例)[^:：]*[:：]\s*)?([^\s:：]+)\s*[:：]/.exec(sentence)?.[1] ?? "";
      return [place, place.replace(/\[\d+\]$/, ""), place.replace(/\.[^.]*$/, "")];
    }
    const all = (this.value["cases"] ?? []) as Case[];
    const isNamed = (each: Case, i: number) => {
      const own = textOf(each["id"]) || String(i + 1);
      return own === name || (name.endsWith("…") && own.startsWith(name.slice(0, -1))); // cut where it is long
    };
    const at = key === "id" ? all.findLastIndex(isNamed) : all.findIndex(isNamed); // an id that stands twice
    const inRow = pathText(["cases", String(at), key]);
    return all[at]?.[key] === undefined && key in this.value ? [key] : [inRow, key, key.replace(/\.[^.]*$/, "")];
  }

  // Leads to the field that was blamed.
  readonly mend = (): void => {
    const blamed = this.element.querySelector<HTMLElement>('[aria-invalid="true"]') ?? this.element;
    const field = blamed.matches("input, select") ? blamed : (blamed.querySelector<HTMLElement>("input, select") ?? blamed.querySelector<HTMLElement>("button"));
    field?.scrollIntoView({ block: "center" });
    field?.focus();
  };

  private readonly now = (): string => JSON.stringify([this.value, this.edition?.asked ?? null]);

  // What is there now is a step back.
  remember(): void {
    this.steps.past.push(this.now());
    if (this.steps.past.length > 200) this.steps.past.shift();
    this.steps.undone = [];
  }

  private put(path: string[], value: unknown, typed = false): void {
    const place = pathText(path);
    if (!typed || this.steps.typedIn !== place) this.remember();
    this.steps.typedIn = typed ? place : "";
    put(this.value, path, value);
    this.changed(this.value);
  }

  private draw(): void {
    const focused = [...this.fields].find(([, { control }]) => control === document.activeElement)?.[0];
    void keepFocus(() => this.drawFields());
    if (focused !== undefined) this.fields.get(focused)?.control.focus();
  }

  private drawFields(): void {
    this.fields.clear();
    const above = el("p", { class: "fault", role: "alert" });
    this.fields.set("", { control: this.element, note: above });
    const properties = Object.entries(this.schema.properties ?? {}).filter(([key]) => key !== "code" && !this.left.includes(key));
    const required = new Set(this.schema.required);
    const group = (keys: [string, Schema][]) => keys.map(([key, schema]) => this.field([key], schema, required.has(key)));
    const head = properties.filter(([key]) => kHead.includes(key));
    const must = properties.filter(([key]) => required.has(key) && !kHead.includes(key));
    const may = properties.filter(([key]) => !required.has(key) && !kHead.includes(key));
    const folded = (key: string, title: string, part: [string, Schema][]) =>
      part.length > 0 ? [fold(key, title, group(part), part.some(([each]) => each in this.value))] : [];
    this.body.replaceChildren(above, ...group(must), ...(this.kind === "member" ? group(may) : folded("more", say("其他", "More"), may)),
      ...folded("head", say("计算书页首", "Head of the report"), head));
  }

  // A choice that other fields hang on: one step, with what belongs to it. It changes those fields alone, as soon
  // as that is known; what the user has changed of them meanwhile counts, and then the choice does not.
  private async choose(path: string[], value: unknown): Promise<void> {
    const place = pathText(path);
    const mine = (this.choices.get(place) ?? 0) + 1;
    this.choices.set(place, mine);
    this.choosing();
    const before = structuredClone(this.value);
    const next = structuredClone(before);
    put(next, path, value);
    const changes = differences(before, await settled(this.kind, path, next));
    if (mine !== this.choices.get(place) || !this.element.isConnected) return;
    const chosen = structuredClone(this.value);
    if (!changes.every((change) => same(get(chosen, change.path), change.from))) {
      this.draw();
      return this.changed(this.value);
    }
    for (const change of changes) put(chosen, change.path, change.to);
    this.replace(chosen);
  }

  private field(path: string[], schema: Schema, required = false): HTMLElement {
    const key = path.at(-1)!;
    if (!hasPlace(path, this.value)) return el("span", { hidden: true });
    if (pathText(path) === "section.sizes" && styleOf(this.value["section"] as Case)) return this.sizes(path);
    const value = get(this.value, path);
    if (schema.properties) return this.group(path, schema, required);
    if (isType(schema, "array") && schema.items?.properties) return this.list(path, schema, schema.items);
    const { name, takes, unit } = wordsOf(this.kind, path.join("."), schema);
    const note = el("p", { class: "fault", role: "alert", id: newId() });
    const control = this.control(path, schema, value, takes);
    control.id = newId();
    const told = el("p", { class: "takes", id: newId() }, takes);
    control.setAttribute("aria-describedby", `${note.id} ${told.id}`);
    this.fields.set(pathText(path), { control, note });
    return el("div", { class: required ? "field must" : "field" },
      el("label", { for: control.id }, el("b", {}, key), name && name !== key ? ` ${name}` : ""),
      el("span", { class: "control" }, control, el("span", { class: "unit" }, unit)), told, note);
  }

  private control(path: string[], schema: Schema, value: unknown, takes: string): HTMLElement {
    if (schema.enum && ["table", "type"].includes(path.at(-1)!)) return this.listed(path, value, async () => schema.enum!.map((each) => [String(each), choiceName(String(each), takes)]));
    const choices = schema.enum ? [...new Map(schema.enum.map((each) => [String(each), each])).values()]
      : schema.type === "boolean" ? [true, false] : null;
    if (choices) {
      const made = el("select", { onchange: () => this.put(path, choices.find((each) => String(each) === made.value)) }, el("option", { value: "" }, "–"));
      for (const each of choices) {
        const text = each === true ? say("是", "yes") : each === false ? say("否", "no") : choiceName(String(each), takes);
        made.append(el("option", { value: String(each), selected: value !== undefined && String(each) === String(value) }, text));
      }
      return made;
    }
    const list = listOf(this.kind, path, this.value);
    if (list) return this.listed(path, value, list);
    const made = el("input", { type: "text", value: textOf(value), autocomplete: "off", oninput: () => this.put(path, valueOf(made.value, schema), true) });
    if (!isType(schema, "string")) made.inputMode = "decimal";
    return made;
  }

  // A choice from a list of the command's; what stands there stays a choice, also where the list lacks it. A list that
  // was not got, as after Stop, is asked for again.
  private listed(path: string[], value: unknown, list: () => Promise<Choices>): HTMLElement {
    const given = textOf(value);
    let isListed = false;
    const made = el("select", { onchange: () => void this.choose(path, made.value || undefined) }, el("option", { value: "" }, "–"));
    if (given) made.append(el("option", { value: given, selected: true }, given));
    const fill = async () => {
      if (isListed) return;
      const all = await list();
      isListed = all.length > 0;
      made.replaceChildren(el("option", { value: "" }, "–"), ...(given && !all.some(([each]) => each === given) ? [el("option", { value: given, selected: true }, given)] : []),
        ...all.map(([each, text]) => el("option", { value: each, selected: each === given }, text)));
    };
    made.onfocus = fill;
    void fill();
    return made;
  }

  // The sizes of a style, each in a field of its own.
  private sizes(path: string[]): HTMLElement {
    const given = get(this.value, path);
    const sizes = Array.isArray(given) ? given : given === undefined ? [] : [given];
    const note = el("p", { class: "fault", role: "alert", id: newId() });
    const inputs: HTMLInputElement[] = [];
    const rows = styleOf(this.value["section"] as Case)!.sizes.map((size, i) => {
      const [sign, unit] = signParts(size.sign);
      const input = el("input", { type: "text", inputmode: "decimal", autocomplete: "off", value: textOf(sizes[i]), "aria-describedby": note.id,
        oninput: () => this.put(path, inputs.map((each) => valueOf(each.value, { type: "number" }) ?? ""), true) });
      inputs.push(input);
      return labelled(`${sign} ${say(size.title, size.meaning)}`, input, el("span", { class: "unit" }, unit));
    });
    const made = el("div", { class: "sizes" }, ...rows, note);
    this.fields.set(pathText(path), { control: made, note });
    return made;
  }

  // How a member's section is told; each way has fields of its own.
  private way(): HTMLElement {
    const section = (this.value["section"] ?? {}) as Case;
    const now = wayOf(section);
    return labelled(say("截面取自", "Section by"), select(ways(), now, (way) => {
      if (Object.keys(section).length > 0) this.steps.ways.set(now, section);
      void this.choose(["section"], byWay(way as Way, this.steps.ways));
    }));
  }

  private title(path: string[], schema: Schema): string {
    const { name } = wordsOf(this.kind, path.join("."), schema);
    const key = path.at(-1)!;
    return name.startsWith(key) ? name : `${key} ${name}`;
  }

  private group(path: string[], schema: Schema, open: boolean): HTMLElement {
    const must = new Set(schema.required);
    const title = this.title(path, schema);
    const note = el("p", { class: "fault", role: "alert" });
    const inside = Object.entries(schema.properties!).map(([key, each]) => this.field([...path, key], each, must.has(key)));
    if (pathText(path) === "section") inside.unshift(this.way());
    const made = fold(pathText(path), title, [note, ...inside], open || get(this.value, path) !== undefined || path[0] === "lengths");
    this.fields.set(pathText(path), { control: made, note });
    return made;
  }

  // Objects one below the other, with a button that adds one.
  private list(path: string[], schema: Schema, items: Schema): HTMLElement {
    const values = (get(this.value, path) as unknown[] | undefined) ?? [];
    const note = el("p", { class: "fault", role: "alert" });
    const rows = values.map((_, i) => el("fieldset", { class: "item" }, el("legend", {}, `${this.title(path, schema)} ${i + 1}`),
      ...Object.entries(items.properties!).map(([key, each]) => this.field([...path, String(i), key], each, items.required?.includes(key))),
      button(say("删去", "Remove"), () => this.edit(path, values.filter((_, at) => at !== i)))));
    const made = fold(pathText(path), this.title(path, schema), [note, ...rows, button(say("添加", "Add"), () => this.edit(path, [...values, structuredClone(values.at(-1) ?? {})]))], true);
    this.fields.set(pathText(path), { control: made, note });
    return made;
  }

  private edit(path: string[], value: unknown[]): void {
    this.put(path, value.length > 0 ? value : undefined);
    this.draw();
  }
}

// "grid 并列" of "grid 并列，staggered 错列"; the choice alone where the words do not name it so.
function choiceName(choice: string, takes: string): string {
  const named = takes.split(/[，；：]/).map((part) => part.trim()).find((part) => part.startsWith(`${choice} `) && /[\u4e00-\u9fff]/.test(part));
  return named?.replace(/（.*$/, "") ?? choice;
}
