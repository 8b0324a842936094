// An outline from a DXF or JSON file. It stands in the address, compressed, if it is not too long.
import { ask, lineOf, sentence, withWords } from "../../command/client";
import { pack, unpack } from "../../formats/packed_text";
import { button, bytesOf, download, el, noAnswer } from "../../parts/dom";
import { change, state } from "../../state/address";
import { kept } from "../../state/kept";
import { say } from "../../state/language";
import { sectionView } from "../section_view";

const kLongestLink = 8000; // letters, which mail and chat programs still pass on

interface Outline {
  name: string;
  data: Uint8Array;
}
let outline: Outline | null = null;
let damaged = "";
const dropped = () => kept("outline", () => ({ of: null as Outline | null })); // where the link leaves it out

// Reads a file, which then is the outline, unless something else has been asked for meanwhile.
export async function takeOutline(file: File, isAsked: () => boolean): Promise<void> {
  const read = { name: file.name, data: await bytesOf(file) };
  const packed = await pack(read.data);
  if (!isAsked()) return;
  [outline, damaged] = [read, ""];
  change({ outline: outline.name, shape: packed.length <= kLongestLink ? packed : "", style: "", sizes: "", base: "", layer: "" }, true);
  dropped().of = outline;
}

// Whether the address tells of an outline, which is then the one that is shown.
export async function givenOutline(): Promise<boolean> {
  const { outline: name, shape } = state();
  if (!name) return false;
  damaged = "";
  if (!shape) {
    outline = dropped().of;
    if (!outline) damaged = say("链接中没有这个外轮廓（文件太大）；请重新选取文件", "the link leaves this outline out, its file is too long; choose the file again");
    return true;
  }
  try {
    outline = { name, data: await unpack(shape) };
  } catch {
    [outline, damaged] = [null, say("链接中的外轮廓已损坏", "the outline in this link is damaged")];
  }
  return true;
}

// As the command is to read it, and to call it in the picture.
const fileName = (name: string) => (/\.(dxf|json)$/i.test(name) ? name : "outline.dxf");

// Before release 2007 the names of layers are of the code page, as the command reads them.
function textOf(data: Uint8Array): string {
  try {
    return new TextDecoder("utf-8", { fatal: true }).decode(data);
  } catch {
    return new TextDecoder("gbk").decode(data);
  }
}

// The layers that a DXF file draws on, from its own lines: the group 8 of each entity.
export function layersOfOutline(): string[] {
  if (!outline || outline.name.toLowerCase().endsWith(".json")) return [];
  const lines = textOf(outline.data).split(/\r?\n/);
  const layers = new Set<string>();
  let inside = false;
  for (let i = 0; i + 1 < lines.length; i += 2) {
    const [code, value] = [lines[i]!.trim(), lines[i + 1]!.trim()];
    if (code === "2" && lines[i - 1]?.trim() === "SECTION") inside = value === "ENTITIES";
    else if (inside && code === "8") layers.add(value);
  }
  return [...layers].sort();
}

export async function outlineView(layer: string): Promise<HTMLElement | null> {
  if (damaged) return noAnswer(`${state()["outline"]}: ${damaged}`);
  if (!outline) return null;
  const { name, data } = outline;
  const file = fileName(name);
  const line = lineOf(["outline", ...(layer ? [`--layer=${layer}`] : [])], file);
  const answer = await ask(withWords(line, "--json", "--svg", "picture.svg"), { [file]: data });
  if (answer.status !== 0) return noAnswer(`${name}: ${sentence(answer, file)}`);
  const csv = button("CSV", async () => {
    const written = await ask(withWords(line, "--csv"), { [file]: data });
    download(`${name.replace(/\.[^.]*$/, "")}.csv`, written.out);
  }, { title: say("保存文件", "save as a file") });
  const left = state()["shape"] ? null
    : el("p", { class: "note" }, say("此文件太大，链接中不含外轮廓；请随链接附上文件。", "This file is too long for a link: send the file along with it."));
  return el("div", {}, sectionView(name, answer, name.replace(/\.[^.]*$/, ""), { svg: line }, { [file]: data }, [csv]), left);
}
