// The page's side of the command: starts the worker and asks it.
import exact from "inside:exact";
import store from "inside:store";
import wasm from "inside:wasm";
import source from "inside:worker";
import type { Answer, Files } from "./core";
import { language } from "./language";
import type { Reply, Start } from "./worker";

export type { Answer, Files } from "./core";

async function unpacked(base64: string): Promise<Uint8Array> {
  const packed = Uint8Array.from(atob(base64), (ch) => ch.charCodeAt(0));
  const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Uint8Array(await new Response(stream).arrayBuffer());
}

const waiting = new Map<number, (answer: Answer) => void>();
let orders = 0;

async function start(): Promise<Worker> {
  const worker = new Worker(URL.createObjectURL(new Blob([source], { type: "text/javascript" })));
  worker.onmessage = ({ data }: MessageEvent<Reply>) => {
    waiting.get(data.id)?.(data.answer);
    waiting.delete(data.id);
  };
  const [code, tables, figures] = await Promise.all([unpacked(wasm), unpacked(store), unpacked(exact)]);
  const module = await WebAssembly.compile(code as BufferSource);
  worker.postMessage({ module, store: tables, exact: figures } satisfies Start);
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

export function forgetOwnStore(): Promise<Answer> {
  return order({ kind: "forget" });
}

// The command's sentence without its name and the file's.
export function sentence(answer: Answer, file = ""): string {
  let text = answer.err.trim().replace(/^orv3cal: /, "");
  if (file && text.startsWith(file)) text = text.slice(file.length).replace(/^[:：]\s*/, "");
  return text;
}
