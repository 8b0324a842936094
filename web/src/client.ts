// The page's side of the command: starts the worker and asks it.
import source from "inside:worker";
import type { Answer, Files } from "./core";
import { language } from "./language";
import type { Reply, Start } from "./worker";

export type { Answer, Files } from "./core";

const waiting = new Map<number, (answer: Answer) => void>();
let orders = 0;

// The core and the catalogue stand behind this script, so that the page is there before them.
async function start(): Promise<Worker> {
  const worker = new Worker(URL.createObjectURL(new Blob([source], { type: "text/javascript" })));
  worker.onmessage = ({ data }: MessageEvent<Reply>) => {
    waiting.get(data.id)?.(data.answer);
    waiting.delete(data.id);
  };
  if (document.readyState === "loading") await new Promise((done) => addEventListener("DOMContentLoaded", done));
  const packed = (name: string) => {
    const place = document.getElementById(`inside-${name}`)!;
    const text = place.textContent!;
    place.remove();
    return text;
  };
  worker.postMessage({ wasm: packed("wasm"), store: packed("store"), exact: packed("exact") } satisfies Start);
  return worker;
}
const started = start();

async function order(what: object): Promise<Answer> {
  const worker = await started;
  return new Promise((done) => {
    waiting.set(++orders, done);
    worker.postMessage({ id: orders, ...what });
  });
}

// One command line; `files` are there by their names, what the command writes is in the answer.
export function run(argv: string[], files: Files = {}): Promise<Answer> {
  return order({ kind: "run", argv: argv.map(String), files, language: language() });
}

// A command line in the page's language.
export function ask(argv: string[], files: Files = {}): Promise<Answer> {
  return run([...argv, "--lang", language()], files);
}

// What a command line in JSON answers; its sentence is the error where it answers nothing.
export async function told<T>(argv: string[]): Promise<T> {
  const answer = await ask([...argv, "--json"]);
  if (answer.status !== 0) throw new Error(sentence(answer));
  return JSON.parse(answer.out) as T;
}

export function forgetOwnStore(): Promise<Answer> {
  return order({ kind: "forget" });
}

// The command's sentence without its name and the file's.
export function sentence(answer: Answer, file = ""): string {
  let text = answer.err.trim().replace(/^orv3cal: /, "");
  if (file && text.startsWith(file)) text = text.slice(file.length).replace(/^[:：]\s*/, "");
  return text;
}
