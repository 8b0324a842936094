// Own sections: a style with its sizes typed beside the picture, or any outline from a file.
import { change, state } from "./address";
import { ask, sentence, told, type Answer } from "./client";
import { button, bytesOf, dropPlace, el, fault, field, latest, newId, select } from "./dom";
import { signParts } from "./figures";
import { language, say } from "./language";
import { sectionView } from "./section_view";

interface StyleJson {
  style: number;
  alias: string;
  table: string;
  shape: string;
  sizes: { sign: string; title: string; meaning: string }[];
}

// Sizes to begin with, by alias.
const kFirst: Record<string, string> = {
  h: "300,400,20,10", box: "300,400,16", "flanged-cross": "300,400,200,250,10,16", rect: "100,200", hexagon: "60",
  triangle: "100,100", circle: "40", tube: "110,100", t: "10,300,16,95,95", "general-h": "10,400,20,16,95,95,145,145",
  l: "10,160,12,90", z: "10,200,12,12,60,60", channel: "10,200,12,12,65,65", cross: "10,10,95,95,95,95",
  "general-box": "300,400,16,16,12,12",
};

// An outline that was given by a file, as long as the page is open.
let outline: { name: string; data: Uint8Array } | null = null;

export async function ownSections(place: HTMLElement): Promise<void> {
  const styles = await told<StyleJson[]>(["styles"]);
  const chosen = styles.find((each) => each.alias === state()["style"]) ?? styles[0]!;
  const given = (state()["sizes"] ?? kFirst[chosen.alias] ?? "").split(",");
  const view = el("div", { class: "detail wide", "aria-live": "polite" });
  const note = el("p", { class: "fault", role: "alert", id: newId() });
  const saved = el("p", { class: "note", role: "status" });
  const inputs = chosen.sizes.map((size, i) => {
    const [sign, unit] = signParts(size.sign);
    const input = el("input", { type: "text", inputmode: "decimal", value: given[i] ?? "", "aria-describedby": note.id, oninput: () => void compute() });
    return { size, input, row: field(`${sign} · ${language() === "zh" ? size.title : size.meaning}`, input, el("span", { class: "unit" }, unit)) };
  });
  const base = ["x", "y"].map((axis, i) => {
    const input = el("input", { type: "text", inputmode: "decimal", value: (state()["base"] ?? "0,0").split(",")[i] ?? "0", oninput: () => void compute() });
    return { input, row: field(say(`基点 ${axis}`, `base point ${axis}`), input, el("span", { class: "unit" }, "mm")) };
  });
  const name = el("input", { type: "text", maxlength: 30, value: state()["name"] ?? "", oninput: () => change({ name: name.value }) });
  const sizes = () => inputs.map(({ input }) => input.value.trim());

  const line = () => ["section", chosen.alias, ...sizes(), "--base", ...base.map(({ input }) => input.value.trim() || "0")];
  const show = latest(
    (): Promise<Answer> => ask([...line(), "--json", "--svg", "picture.svg"]),
    (answer) => {
      note.textContent = answer.status === 0 ? "" : sentence(answer);
      for (const { size, input } of inputs) {
        const named = answer.status !== 0 && sentence(answer).startsWith(size.sign);
        input.setAttribute("aria-invalid", String(named));
      }
      if (answer.status === 0) view.replaceChildren(sectionView(`${chosen.table} ${sizes().join("×")}`, answer, undefined, { svg: line(), dxf: line() }));
      view.classList.toggle("stale", answer.status !== 0);
    },
  );
  const compute = async () => {
    change({ style: chosen.alias, sizes: sizes().join(","), base: base.map(({ input }) => input.value).join(",") });
    if (sizes().some((size) => size === "")) {
      note.textContent = say("请填写所有尺寸。", "Every size is needed.");
      view.classList.add("stale");
      return;
    }
    await show();
  };
  const save = async () => {
    const cells = inputs.flatMap(({ size, input }) => ["--set", `${size.sign}=${input.value.trim()}`]);
    const answer = await ask(["store", "add", chosen.table, "--set", `No.=${name.value}`, ...cells]);
    saved.textContent = answer.status === 0 ? answer.out : sentence(answer);
    saved.classList.toggle("fault", answer.status !== 0);
  };
  const style = select(styles.map((each) => [each.alias, `${each.style} ${language() === "zh" ? each.table : each.shape}`]), chosen.alias, (alias) => {
    change({ style: alias, sizes: "" }, true);
    void ownSections(place);
  });
  const form = el("form", { class: "form", onsubmit: (event: Event) => event.preventDefault() },
    el("h1", {}, say("自定义截面", "Own section")),
    field(say("类型", "Style"), style), ...inputs.map(({ row }) => row), ...base.map(({ row }) => row), note,
    el("div", { class: "tools" }, field(say("型号", "Name to keep it by"), name), button(say("存入自己的库", "Keep in own store"), () => void save())), saved,
    el("h2", {}, say("任意外轮廓", "Any outline")),
    dropPlace(say("DXF 或 JSON 文件", "A DXF or JSON file"), ".dxf,.json", async ([file]) => {
      if (!file) return;
      outline = { name: file.name, data: await bytesOf(file) };
      await showOutline(view);
    }));
  place.replaceChildren(form, view);
  if (outline && !state()["style"]) await showOutline(view);
  else await compute();
}

async function showOutline(view: HTMLElement): Promise<void> {
  if (!outline) return;
  const { name, data } = outline;
  const file = name.toLowerCase().endsWith(".json") ? "outline.json" : "outline.dxf";
  const answer = await ask(["outline", file, "--json", "--svg", "picture.svg"], { [file]: data });
  view.classList.remove("stale");
  view.replaceChildren(answer.status === 0 ? sectionView(name, answer) : fault(`${name}: ${sentence(answer, file)}`));
}
