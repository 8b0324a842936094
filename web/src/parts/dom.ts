// Elements of the page.
import { say } from "../state/language";

type Child = Node | string | null | undefined | false;
type Attributes = Record<string, string | number | boolean | null | undefined | ((event: never) => void)>;

// An element with attributes, "onclick" and the like among them, and children; null is left out.
export function el<K extends keyof HTMLElementTagNameMap>(
  tag: K,
  attributes: Attributes = {},
  ...children: Child[]
): HTMLElementTagNameMap[K] {
  const made = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (typeof value === "function") made.addEventListener(name.slice(2), value as EventListener);
    else if (value !== false && value != null) made.setAttribute(name, value === true ? "" : String(value));
  }
  made.append(...children.filter((child): child is Node | string => child !== null && child !== undefined && child !== false));
  return made;
}

let ids = 0;
export const newId = () => `f${++ids}`;

export function button(text: string, act: () => unknown, more: Attributes = {}): HTMLButtonElement {
  return el("button", { type: "button", onclick: act, ...more }, text);
}

// A label above its control, a unit beside it.
export function field(label: Child, control: HTMLElement, note: Child = null): HTMLElement {
  control.id ||= newId();
  const unit = note instanceof HTMLElement && note.className === "unit";
  const line = unit ? el("span", { class: "control" }, control, note) : control;
  return el("div", { class: "field" }, el("label", { for: control.id }, label), line, unit ? null : note);
}

// What stands there, as by a link, stays a choice also where it is none of the options, for who is asked to refuse it.
export function select(options: [value: string, text: string][], value: string, changed: (value: string) => void) {
  const made = el("select", { onchange: () => changed(made.value) });
  const isListed = value === "" || options.some(([each]) => each === value);
  for (const [each, text] of isListed ? options : [[value, value] as const, ...options]) made.append(el("option", { value: each, selected: each === value }, text));
  return made;
}

const kPictureHeight = 460; // px, at most
const kSmallestText = 10.5; // px
const kMostLarger = 1.5; // of its texts, so that they keep clear of one another

// The command's drawing, which comes as text, with styles and names of its own. On white, calm in the dark theme.
// Within the page, not as an image: that would wait for the browser to load it at every keystroke.
export function picture(svg: string | Uint8Array | undefined, name: string): HTMLElement {
  const holder = el("div", { class: "picture" });
  if (!svg) return holder;
  const text = typeof svg === "string" ? svg : new TextDecoder().decode(svg);
  const drawing = document.importNode(new DOMParser().parseFromString(text, "image/svg+xml").documentElement, true) as unknown as SVGSVGElement;
  for (const script of drawing.querySelectorAll("script")) script.remove(); // an image would run none either
  holder.setAttribute("role", "img");
  holder.setAttribute("aria-label", name);
  const [wide = 1, high = 1] = (drawing.getAttribute("viewBox") ?? "").split(" ").slice(2).map(Number);
  size(drawing, wide, high);
  holder.attachShadow({ mode: "open" }).append(drawing);
  requestAnimationFrame(() => fit(drawing));
  return holder;
}

const size = (drawing: SVGSVGElement, wide: number, high: number) =>
  drawing.setAttribute("style", `width: ${Math.min(wide, (kPictureHeight * wide) / high)}px; max-width: 100%; height: auto`);

// Leaves out the empty paper around what is drawn, and makes small texts large enough to read.
function fit(drawing: SVGSVGElement): void {
  const paper = drawing.querySelector(":scope > rect[fill='#FFFFFF']");
  if (drawing.getBoundingClientRect().width === 0) return;
  paper?.remove();
  const { x, y, width, height } = drawing.getBBox();
  const [wide, high] = [width + 16, height + 16];
  drawing.setAttribute("viewBox", `${x - 8} ${y - 8} ${wide} ${high}`);
  drawing.removeAttribute("width");
  drawing.removeAttribute("height");
  size(drawing, wide, high);
  const scale = drawing.getBoundingClientRect().width / wide;
  for (const each of drawing.querySelectorAll("text")) {
    const given = Number(each.getAttribute("font-size"));
    const larger = Math.min(kMostLarger, kSmallestText / (given * scale));
    if (larger > 1) each.setAttribute("font-size", String(given * larger));
  }
  const drawn = drawing.getBBox(); // with the larger texts
  drawing.setAttribute("viewBox", `${drawn.x - 8} ${drawn.y - 8} ${drawn.width + 16} ${drawn.height + 16}`);
}

export function download(name: string, data: Uint8Array | string): void {
  const link = el("a", { download: name });
  link.href = URL.createObjectURL(new Blob([data as BlobPart]));
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

// A button that copies a text. Where the browser keeps the clipboard from pages, a selection is copied.
export function copyButton(label: string, text: () => string): HTMLButtonElement {
  const made = button(label, async () => {
    const done = await navigator.clipboard?.writeText(text()).then(() => true, () => false);
    made.textContent = done || copySelected(text()) ? `${label} ✓` : say("浏览器不允许复制", "the browser does not let this page copy");
    setTimeout(() => (made.textContent = label), 2000);
  });
  return made;
}

function copySelected(text: string): boolean {
  const area = el("textarea", { class: "hidden", "aria-hidden": "true" });
  area.value = text;
  document.body.append(area);
  area.select();
  const done = document.execCommand("copy");
  area.remove();
  return done;
}

export async function bytesOf(file: File): Promise<Uint8Array> {
  try {
    return new Uint8Array(await file.arrayBuffer());
  } catch {
    throw new Error(say(`${file.name}：无法读取，可能已移走、是文件夹或没有权限；请重新选取`, `${file.name}: cannot be read, it may have been moved, be a folder or be closed to you; choose it again`));
  }
}

// A place to drop files on, and a button that asks for them. Where one is asked for, several are refused: none of
// them is to pass for all.
export function dropPlace(text: string, accept: string, taken: (files: File[]) => void, many = false): HTMLElement {
  const refused = fault("");
  const take = (files: File[]) => {
    const good = many || files.length < 2;
    refused.textContent = good ? "" : say(`同时给出了 ${files.length} 个文件，一个也没有读入；请一次给一个`, `${files.length} files at once, of which none was taken; give one at a time`);
    if (good && files.length > 0) taken(files);
  };
  const chosen = () => {
    const files = [...(input.files ?? [])];
    input.value = ""; // so that the same file can be chosen again
    take(files);
  };
  const input = el("input", { type: "file", accept, multiple: many, onchange: chosen, hidden: true });
  const [choose, orDrop] = many ? [say("选取文件…", "Choose files…"), say("或拖放到此", "or drop them here")] : [say("选取文件…", "Choose a file…"), say("或拖放到此", "or drop it here")];
  const place = el("div", { class: "drop" }, field(text, button(choose, () => input.click())), input, el("span", { class: "note" }, orDrop), refused);
  place.ondragover = (event) => {
    event.preventDefault();
    place.classList.add("over");
  };
  place.ondragleave = () => place.classList.remove("over");
  place.ondrop = (event) => {
    event.preventDefault();
    place.classList.remove("over");
    take([...(event.dataTransfer?.files ?? [])]);
  };
  return place;
}

// The last of many asks counts: what is asked meanwhile waits, the latest of it alone, and an answer that
// is no longer wanted is dropped. So the worker is never more than one run behind the keys.
export function latest<A extends unknown[], R>(ask: (...args: A) => Promise<R>, show: (answer: R) => void) {
  let wanted: A | null = null;
  let running: Promise<void> | null = null;
  const run = async () => {
    try {
      while (wanted) {
        const mine = wanted;
        wanted = null;
        const answer = await ask(...mine);
        if (!wanted) show(answer);
      }
    } finally {
      running = null;
    }
  };
  return (...args: A): Promise<void> => {
    wanted = args;
    return (running ??= run());
  };
}

export function fault(text: string): HTMLElement {
  return el("p", { class: "fault", role: "alert" }, text);
}

// A link that names what there is not: then no example stands in its place.
export const noSuch = (key: string, given: string, right: string[]) => fault(
  say(`链接中的 ${key}=${given}：没有“${given}”；应为 ${right.join("、")} 之一`, `${key}=${given} in this link: there is no "${given}"; right would be one of ${right.join(", ")}`));

// Stands where an answer would: what is given has none, and why; the button leads to what must be mended.
export function noAnswer(why: string, mend: (() => void) | null = null): HTMLElement {
  return el("p", { class: "box none" }, el("b", {}, say("没有结果", "No answer")), why && ` · ${why} `,
    mend && button(say("到该栏", "Go to the field"), mend, { class: "quiet" }));
}

export const computing = () => el("p", { class: "note", role: "status" }, say("计算中…", "Computing…"));
