// The page's side of the command: starts the worker and asks it.
import source from "inside:worker";
import { language, say } from "../state/language";
import type { Answer, Files } from "./core";
import type { Reply, Start } from "./worker";

export type { Answer, Files } from "./core";

const waiting = new Map<number, (answer: Answer) => void>();
let orders = 0;

// Told when an answer takes long (the start of the page aside), and when it has come.
let busyShown: (busy: boolean) => void = () => {};
export const onBusy = (show: (busy: boolean) => void) => void (busyShown = show);
const kLong = 700; // ms
let answered = false;
let busyTimer = 0;
function tellBusy(busy: boolean): void {
  clearTimeout(busyTimer);
  busyTimer = 0;
  if (!busy) busyShown(false);
  else if (answered) busyTimer = setTimeout(() => busyShown(true), kLong);
}

// Whether the browser lets this page keep anything: asked of the one storage that says so.
export function keepsStore(): boolean {
  try {
    return window.localStorage !== null;
  } catch {
    return false;
  }
}

// The core and the catalogue stand behind this script, so that the page is there before them.
async function unpackedPage(): Promise<Start> {
  if (document.readyState === "loading") await new Promise((done) => addEventListener("DOMContentLoaded", done));
  const packed = (name: string) => {
    const place = document.getElementById(`inside-${name}`)!;
    place.remove();
    return place.textContent!;
  };
  return { wasm: packed("wasm"), store: packed("store"), exact: packed("exact"), storage: keepsStore() };
}
const inside = unpackedPage();

// Told of a save, and whether a store is kept by it.
let savedHere: (isKept: boolean) => void = () => {};
export const onSave = (saved: (isKept: boolean) => void) => void (savedHere = saved);

// Told that the browser could not write or read the store.
let tornHere: () => void = () => {};
export const onTorn = (torn: () => void) => void (tornHere = torn);

// Tabs tell one another of their saves.
const tabs = new BroadcastChannel("orv3cal");
export const onOtherSave = (saved: () => void) => void (tabs.onmessage = saved);

async function start(): Promise<Worker> {
  const worker = new Worker(URL.createObjectURL(new Blob([source], { type: "text/javascript" })));
  worker.onmessage = ({ data }: MessageEvent<Reply>) => {
    if (data === "torn") return tornHere();
    if (typeof data === "string") {
      savedHere(data === "saved");
      return tabs.postMessage(data);
    }
    waiting.get(data.id)?.(data.answer);
    waiting.delete(data.id);
    answered = true;
    if (waiting.size === 0) tellBusy(false);
  };
  worker.postMessage(await inside);
  return worker;
}
let started = start();

// Ends what is being computed, and what waits for it. The own store is whole: a save is one transaction.
export async function stop(): Promise<void> {
  const worker = await started;
  worker.terminate();
  started = start();
  const err = `orv3cal: ${say("已停止", "stopped")}\n`;
  for (const done of waiting.values()) done({ status: 3, out: "", err, files: {} });
  waiting.clear();
  tellBusy(false);
}

async function order(what: object): Promise<Answer> {
  const worker = await started;
  return new Promise((done) => {
    if (waiting.size === 0) tellBusy(true);
    waiting.set(++orders, done);
    worker.postMessage({ id: orders, ...what });
  });
}

// A command line: its words and options, and what it is given (names, sizes, files), which stands behind "--",
// where nothing is an option, whatever it begins with.
export interface Line {
  words: string[];
  given: string[];
}
export const lineOf = (words: string[], ...given: string[]): Line => ({ words, given });
export const withWords = (line: Line, ...words: string[]): Line => ({ ...line, words: [...line.words, ...words] });

// One command line; `files` are there by their names, what the command writes is in the answer.
export function run(argv: string[], files: Files = {}): Promise<Answer> {
  return order({ kind: "run", argv: argv.map(String), files, language: language() });
}

// A command line in the page's language.
export function ask(line: string[] | Line, files: Files = {}): Promise<Answer> {
  const { words, given } = Array.isArray(line) ? lineOf(line) : line;
  return run([...words, "--lang", language(), ...(given.length > 0 ? ["--", ...given] : [])], files);
}

const kWarmRuns = 30;
let warmed = false;

// Runs a line while nobody asks for anything: browsers compile well only what has run often, and the first
// keys are to be followed as fast as the later ones.
export async function warm(line: Line, goOn: () => boolean): Promise<void> {
  if (warmed) return;
  warmed = true;
  for (let i = 0; i < kWarmRuns && goOn(); ++i) {
    await new Promise((done) => setTimeout(done, 20));
    if (waiting.size === 0) await ask(line);
  }
}

// What a command line in JSON answers; its sentence is the error where it answers nothing.
export async function told<T>(words: string[], ...given: string[]): Promise<T> {
  const answer = await ask(lineOf([...words, "--json"], ...given));
  if (answer.status !== 0) throw new Error(sentence(answer));
  return JSON.parse(answer.out) as T;
}

// Whether there is a store of the user's own.
export async function isStoreKept(): Promise<boolean> {
  return (await order({ kind: "kept" })).status === 0;
}

// Whether the browser keeps none, though it lets the page keep one and can read what it keeps.
export async function wasStoreLost(): Promise<boolean> {
  return keepsStore() && (await order({ kind: "kept" })).status === 1;
}

// Whether the browser can write again, and what it keeps outlasts its next start.
export async function renewStore(): Promise<boolean> {
  return (await order({ kind: "renew" })).status === 0;
}

export function forgetOwnStore(): Promise<Answer> {
  return order({ kind: "forget" });
}

// What the command calls by an option is a field here, called by its label.
const kLabels = (): [option: string, label: string][] => [
  ["give --table with names or all, or --style", "choose a table, or give an own section"],
  ["请给出 --table 表名[,表名...]、--table all 或 --style", "请勾选截面表，或给出自定义截面"],
  ["--table: ", ""], ["--top", say("最多行数", "Rows at most")], ["--base X", say("基点 x", "base point x")], ["--base Y", say("基点 y", "base point y")],
  ["--layer", say("图层", "Layer")], ["--turn", say("转角", "Turned by")], ["--code", say("规范版本", "Edition")], ["--gap", say("两肢间距", "Gap between the parts")], ["--style", say("自定义截面", "Own section")],
  ["--table TABLE", say("所选的表", "the table chosen above")],
];

// The command's sentence without its name and the file's, and without its options.
export function sentence(answer: Answer, file = ""): string {
  let text = answer.err.trim().replace(/^orv3cal: /, "").replace(/ ?[(（](?:see|见) orv3cal[^)）]*[)）]/g, "");
  for (const [option, label] of kLabels()) text = text.replaceAll(option, label);
  if (file && text.startsWith(file)) text = text.slice(file.length).replace(/^[:：]\s*/, "");
  return text;
}
