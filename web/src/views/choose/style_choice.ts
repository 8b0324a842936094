// Own sections to choose among: styles, each size a number or a range of them, as the command's --style takes them.
import { kFirstSizes, type StyleJson } from "../../command/catalogue";
import { button, el, field, newId, select } from "../../parts/dom";
import { bare, signParts, typedNumber } from "../../parts/figures";
import { fold } from "../../parts/fold";
import { keepFocus } from "../../parts/keyboard";
import { language, say } from "../../state/language";

type Choice = Record<string, unknown>; // {"style": "box", "b": [200, 400, 50], "h": 400, "t": 16}

const kParts = (): string[] => [say("从", "from"), say("到", "to"), say("步长", "step")];

// What is typed for a size: the first alone is a number, more make a range; what is no number goes on as it is, for
// the command to judge.
function sizeOf(texts: string[]): unknown {
  const values = texts.map((text) => (Number.isNaN(typedNumber(text)) ? bare(text) : typedNumber(text)));
  while (values.length > 0 && values.at(-1) === "") values.pop();
  return values.length > 1 ? values : values[0];
}

const textsOf = (size: unknown): string[] => [size ?? ""].flat().map(String);

// The choices of the state's text, one object or a list of them; null where it is damaged.
function choicesOf(text: string): Choice[] | null {
  try {
    const choices = [JSON.parse(text || "[]") as Choice | Choice[]].flat();
    return choices.every((each) => typeof each === "object" && each !== null) ? choices : null;
  } catch {
    return null;
  }
}

export class StyleChoices {
  readonly element: HTMLDetailsElement;
  readonly isDamaged: boolean; // the text; then there are none
  private readonly list = el("div");
  private readonly note = el("p", { class: "fault", role: "alert", id: newId() });
  private readonly choices: Choice[];
  private inputs: { sign: string; input: HTMLInputElement }[] = [];

  // `changed` gets the choices as the state's text.
  constructor(private readonly styles: StyleJson[], text: string, private readonly changed: (text: string) => void) {
    const read = choicesOf(text);
    this.isDamaged = read === null;
    this.choices = read ?? [];
    const add = button(say("添加类型", "Add a style"), () => this.edit(() => this.choices.push(this.first("box"))));
    const told = el("p", { class: "note" }, say("每个尺寸为一个数，或从、到和步长（mm）", "Each size is a number, or from, to and step (mm)"));
    this.element = fold("styles", say("自定义截面", "Own sections"), [told, this.list, this.note, add], this.choices.length > 0);
    this.draw();
  }

  // What the command's option takes, once for each style.
  options(): string[] {
    return this.choices.flatMap((each) => ["--style", JSON.stringify(each)]);
  }

  // Says at the size that the sentence begins with what the matter is; whether it is one of own sections.
  blame(sentence: string): boolean {
    const [, why = ""] = /^(?:自定义截面|Own section)[:：]\s*(.*)/s.exec(sentence) ?? [];
    this.note.textContent = why;
    for (const { sign, input } of this.inputs) input.setAttribute("aria-invalid", String(why.startsWith(`${sign} `)));
    if (why) this.element.open = true;
    return why !== "";
  }

  readonly mend = (): void => (this.inputs.find(({ input }) => input.ariaInvalid === "true") ?? this.inputs[0])?.input.focus();

  private first(alias: string): Choice {
    const sizes = (kFirstSizes[alias] ?? "").split(",").map(Number);
    return { style: alias, ...Object.fromEntries(this.sizes(alias).map(({ sign }, i) => [sign, sizes[i]])) };
  }

  private sizes(alias: unknown): { sign: string; name: string }[] {
    const style = this.styles.find((each) => each.alias === alias);
    return (style?.sizes ?? []).map((size) => ({ sign: signParts(size.sign)[0], name: language() === "zh" ? size.title : size.meaning }));
  }

  private edit(act: () => void): void {
    act();
    void keepFocus(() => this.draw());
    this.tell();
  }

  private tell(): void {
    this.changed(this.choices.length > 0 ? JSON.stringify(this.choices) : "");
  }

  private draw(): void {
    this.inputs = [];
    this.list.replaceChildren(...this.choices.map((choice, at) => this.item(choice, at)));
  }

  private item(choice: Choice, at: number): HTMLElement {
    const options = this.styles.map((each): [string, string] => [each.alias, `${each.style} ${language() === "zh" ? each.table : each.shape}`]);
    const style = select(options, String(choice["style"]), (alias) => this.edit(() => (this.choices[at] = this.first(alias))));
    return el("fieldset", { class: "item" }, el("legend", {}, `${say("自定义截面", "Own section")} ${at + 1}`),
      field(say("类型", "Style"), style), ...this.sizes(choice["style"]).map(({ sign, name }) => this.size(choice, sign, name)),
      button(say("删去", "Remove"), () => this.edit(() => this.choices.splice(at, 1)), { "aria-label": `${say("删去", "Remove")} ${at + 1}` }));
  }

  private size(choice: Choice, sign: string, name: string): HTMLElement {
    const given = textsOf(choice[sign]);
    const inputs = kParts().map((part, i) => el("input", { type: "text", inputmode: "decimal", autocomplete: "off", value: given[i] ?? "", placeholder: i === 0 ? null : part,
      "aria-label": `${sign} ${part}`, "aria-describedby": this.note.id, oninput: () => {
        choice[sign] = sizeOf(inputs.map((input) => input.value));
        this.tell();
      } }));
    this.inputs.push(...inputs.map((input) => ({ sign, input })));
    return el("div", { class: "field", role: "group", "aria-label": `${sign} ${name}` }, el("span", { class: "label" }, el("b", {}, sign), ` ${name}`),
      el("span", { class: "control" }, ...inputs, el("span", { class: "unit" }, "mm")));
  }
}
