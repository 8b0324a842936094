// The edition of the design code, chosen above a form. It is the one of the form's case too: what a case from a
// link or a file says of its own edition becomes the choice.
import { change, state } from "../state/address";
import { say } from "../state/language";
import { field, select } from "./dom";

export class Edition {
  readonly element: HTMLElement;
  private readonly choice: HTMLSelectElement;

  // `changing` is told of another choice before it is made.
  constructor(changed: () => void, private readonly takesBoth = true, changing: () => void = () => {}) {
    this.choice = select([], "", (code) => {
      changing();
      this.set(code);
      changed();
    });
    this.element = field(say("规范版本", "Edition"), this.choice);
    this.set(this.asked);
  }

  // "2017", "2003" or "both"; what a link says else, which the command then refuses.
  get asked(): string {
    const code = state()["code"] ?? "2017";
    return code === "both" && !this.takesBoth ? "2017" : code;
  }

  set(code: string): void {
    change({ code: code === "2017" ? "" : code });
    const list: [string, string][] = [["2017", "GB 50017-2017"], ["2003", `GB 50017-2003 ${say("（已废止）", "(withdrawn)")}`]];
    if (this.takesBoth) list.push(["both", say("两版", "both editions")]);
    if (!list.some(([each]) => each === this.asked)) list.push([this.asked, this.asked]);
    this.choice.replaceChildren(...list.map(([value, text]) => new Option(text, value, false, value === this.asked)));
  }

  // The case without the edition that it names.
  take<T extends { code?: unknown }>(value: T): Omit<T, "code"> {
    const { code, ...rest } = value;
    if (code !== undefined) this.set(String(code));
    return rest;
  }
}
