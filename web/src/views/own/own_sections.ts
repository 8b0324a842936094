// Own sections: a style with its sizes typed beside the picture, or any outline from a file.
import { kFirstSizes, styles as readStyles } from "../../command/catalogue";
import { ask, lineOf, sentence, warm, withWords, type Answer } from "../../command/client";
import { button, computing, dropPlace, el, field, newId, noAnswer, noSuch, select } from "../../parts/dom";
import { bare, signParts } from "../../parts/figures";
import { keepFocus, reachable } from "../../parts/keyboard";
import { Question } from "../../parts/question";
import { change, choose, inOne, parted, startView, state } from "../../state/address";
import { kept } from "../../state/kept";
import { language, say } from "../../state/language";
import { onward, sectionView } from "../section_view";
import { givenOutline, layersOfOutline, outlineView, takeOutline } from "./own_outline";

const typed = (value: string, changed: () => void, more = {}) =>
  el("input", { type: "text", inputmode: "decimal", autocomplete: "off", value, oninput: changed, ...more });
const unitMark = (unit: string) => el("span", { class: "unit" }, unit);

export async function ownSections(place: HTMLElement): Promise<void> {
  const isHere = startView();
  const styles = await readStyles();
  if (!isHere()) return;
  const alias = state()["style"] ?? styles[0]!.alias;
  const chosen = styles.find((each) => each.alias === alias);
  if (!chosen) return place.replaceChildren(noSuch("style", alias, styles.map((each) => each.alias)));
  const given = parted(state()["sizes"] ?? kFirstSizes[chosen.alias] ?? "", ",");
  const view = reachable(el("div", { class: "detail wide", "aria-live": "polite" }), say("截面", "the section"));
  const note = el("p", { class: "fault", role: "alert", id: newId() });
  const saved = kept("saved", () => el("p", { class: "note", role: "status" }));
  const inputs = chosen.sizes.map((size, i) => {
    const [sign, unit] = signParts(size.sign);
    const input = typed(given[i] ?? "", () => typedIn(), { "aria-describedby": note.id });
    return { sign: size.sign, cell: size.sign, input, row: field(`${sign} · ${language() === "zh" ? size.title : size.meaning}`, input, unitMark(unit)) };
  });
  const base = ["X", "Y"].map((axis, i) => {
    const input = typed(parted(state()["base"] ?? "0,0", ",")[i] ?? "0", () => typedIn(), { "aria-describedby": note.id });
    const label = say(`基点 ${axis.toLowerCase()}`, `base point ${axis.toLowerCase()}`);
    return { sign: label, cell: `${axis.toLowerCase()}(mm)`, input, row: field(label, input, unitMark("mm")) };
  });
  const fields = [...inputs, ...base];
  const name = el("input", { type: "text", maxlength: 30, value: state()["name"] ?? "", oninput: () => { change({ name: name.value }); saved.replaceChildren(); } });
  let surplus = given.slice(inputs.length); // of a link, for the command to refuse
  const typedSizes = () => [...inputs.map(({ input }) => input.value), ...surplus];
  const sizes = () => typedSizes().map(bare);

  const line = () => lineOf(["section", "--base", ...base.map(({ input }) => bare(input.value) || "0")], chosen.alias, ...sizes());
  // Says at the field that it names what the matter is; without a sentence all is well.
  const blame = (why: string, isBad: (field: (typeof fields)[number]) => boolean) => {
    note.textContent = why;
    for (const each of fields) each.input.setAttribute("aria-invalid", String(why !== "" && isBad(each)));
    const bad = fields.find((each) => why !== "" && isBad(each));
    if (why) view.replaceChildren(noAnswer(why, bad ? () => bad.input.focus() : null));
  };
  let isOutline = false; // of a file, instead of the style with its sizes
  const question = new Question(view, async () => {
    if (isOutline) {
      const shown = await outlineView(layer.value);
      return () => { if (shown) view.replaceChildren(shown); };
    }
    const [asked, given] = [line(), sizes()];
    const answer = await ask(withWords(asked, "--json", "--svg", "picture.svg"));
    return () => {
      const why = answer.status === 0 ? "" : sentence(answer);
      blame(why, ({ sign }) => why.startsWith(sign));
      keep.disabled = why !== "";
      if (!why) view.replaceChildren(sectionView(`${language() === "zh" ? chosen.table : chosen.shape} ${given.join("×")}`, answer, undefined, { svg: asked, dxf: asked }, {}, onward({ style: chosen.alias, sizes: given.map(Number) })));
    };
  });
  // What is kept is what stands in the view; of a style alone, not of an outline.
  const typedIn = () => {
    startView(); // a file that is still being read counts no more
    saved.replaceChildren();
    surplus = [];
    void compute();
  };
  const compute = async () => {
    change({ style: chosen.alias, sizes: inOne(typedSizes(), ","), base: inOne(base.map(({ input }) => input.value), ","), outline: "", shape: "", layer: "" });
    isOutline = false;
    keep.disabled = true;
    await question.ask();
  };
  const showOutline = async () => {
    isOutline = true;
    keep.disabled = true;
    await question.ask();
  };
  // A name that is there is replaced when that is asked for. What is typed meanwhile is not what was to be kept.
  const save = async () => {
    const [no, what] = [name.value, sizes().join("×")];
    const cells = fields.flatMap(({ cell, input }) => ["--set", `${cell}=${bare(input.value) || "0"}`]);
    const tell = (answer: Answer) => {
      saved.replaceChildren(answer.status === 0 ? `${answer.out.trim()} · ${what}` : `${no} ${what}: ${sentence(answer)}`);
      saved.classList.toggle("fault", answer.status !== 0);
    };
    if (no.trim() === "" || (await ask(lineOf(["show", "--json"], chosen.table, no))).status !== 0) {
      return tell(await ask(lineOf(["store", "add", "--set", `No.=${no}`, ...cells], chosen.table)));
    }
    const replace = button(say(`换成 ${what}`, `Replace it by ${what}`), async () => tell(await ask(lineOf(["store", "edit", ...cells], chosen.table, no))));
    saved.classList.remove("fault");
    saved.replaceChildren(say(`库中已有“${no}”。 `, `"${no}" is there already. `), replace);
  };
  const keep = button(say("存入自己的库", "Keep in own store"), () => void save());
  const style = select(styles.map((each) => [each.alias, `${each.style} ${language() === "zh" ? each.table : each.shape}`]), chosen.alias, (alias) => choose({ style: alias, sizes: "", outline: "", shape: "", layer: "" }));
  const layer = select([], "", (name) => {
    change({ layer: name });
    view.replaceChildren(computing());
    void showOutline();
  });
  const layerField = field(say("DXF 的图层", "Layer of the DXF"), layer);
  layerField.hidden = true;
  // The layers of the outline that is shown, of which one can be chosen; without another nothing is asked.
  const listLayers = () => {
    const [names, now] = [layersOfOutline(), state()["layer"] ?? ""];
    if (now && !names.includes(now)) names.push(now);
    const options = [["", say("全部图层", "all layers")], ...names.map((name) => [name, name])];
    layer.replaceChildren(...options.map(([value, text]) => el("option", { value, selected: value === now }, text!)));
    layerField.hidden = names.length < 2 && !now;
  };
  // The last of what is dropped, typed or gone to counts; a file takes a while to read.
  const dropped = async (file: File) => {
    const isAsked = startView();
    keep.disabled = true;
    question.outdate();
    try {
      await takeOutline(file, isAsked);
      if (isAsked()) void keepFocus(() => ownSections(place));
    } catch (error) {
      if (!isAsked()) return;
      question.drop();
      view.replaceChildren(noAnswer((error as Error).message));
    }
  };
  const form = el("form", { class: "form", onsubmit: (event: Event) => event.preventDefault() },
    el("h1", {}, say("自定义截面", "Own section")),
    field(say("类型", "Style"), style), ...fields.map(({ row }) => row), note,
    el("div", { class: "tools" }, field(say("型号", "Name to keep it by"), name), keep), saved,
    el("h2", {}, say("任意外轮廓", "Any outline")),
    dropPlace(say("DXF 或 JSON 文件", "A DXF or JSON file"), ".dxf,.json", ([file]) => void dropped(file!)),
    layerField);
  place.replaceChildren(form, view);
  const fromFile = await givenOutline();
  if (!isHere()) return;
  listLayers();
  if (fromFile) await showOutline();
  else await compute();
  void warm(withWords(line(), "--json", "--svg", "picture.svg"), () => view.isConnected);
}
