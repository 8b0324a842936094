// Runs command lines one after the other, on the own store as the browser keeps it.
import { Core, type Answer, type Files } from "./core";
import { OwnStore, StorageError, type Trouble } from "./own_store";

export interface Start {
  module: WebAssembly.Module;
  store: Uint8Array;
  exact: Uint8Array;
}
export type Order =
  | { id: number; kind: "run"; argv: string[]; files: Files; language: string }
  | { id: number; kind: "forget" };
export type Reply = { id: number; answer: Answer };

const own = new OwnStore();
let core: Core;
let line: Promise<unknown> = Promise.resolve();

const kTroubles: Record<Trouble, [string, string]> = {
  full: ["没有写入，磁盘已满", "not written, the disk is full"],
  denied: ["没有写入，浏览器不允许本页保存数据", "not written, the browser does not let this page keep data"],
  failed: ["没有写入，浏览器未能写入", "not written, the browser could not write it"],
  unread: ["浏览器未能读出", "the browser could not read it"],
};

const kNothing: Answer = { status: 3, out: "", err: "", files: {} };

// What a line says, and leaves, that the browser's storage has stopped.
function stopped(fault: unknown, argv: string[], language: string): Answer {
  const chosen = argv.indexOf("--lang");
  const chinese = (chosen >= 0 ? argv[chosen + 1] : language) === "zh";
  const [zh, en] = kTroubles[fault instanceof StorageError ? fault.trouble : "failed"];
  const err = chinese ? `orv3cal: 您自己的库: ${zh}\n` : `orv3cal: your own store: ${en}\n`;
  return { ...kNothing, err };
}

function same(a: Uint8Array | null, b: Uint8Array | null): boolean {
  if (!a || !b) return a === b;
  return a.length === b.length && a.every((byte, i) => byte === b[i]);
}

// A run that another tab's save has overtaken is done again on that save.
async function run(argv: string[], files: Files): Promise<Answer> {
  for (;;) {
    const before = await own.load();
    const { own: after, ...answer } = await core.run(argv, files, before.bytes);
    if (same(before.bytes, after) || (await own.save(after, before.version))) return answer;
  }
}

async function forget(): Promise<Answer> {
  while (!(await own.save(null, (await own.load()).version)));
  return { ...kNothing, status: 0 };
}

async function answerTo(order: Order): Promise<Answer> {
  const [argv, language] = order.kind === "run" ? [order.argv, order.language] : [[], "en"];
  try {
    return order.kind === "run" ? await run(order.argv, order.files) : await forget();
  } catch (fault) {
    if (fault instanceof StorageError || fault instanceof DOMException) return stopped(fault, argv, language);
    return { ...kNothing, err: `orv3cal: ${String(fault)}\n` };
  }
}

self.onmessage = ({ data }: MessageEvent<Start | Order>) => {
  if ("module" in data) {
    core = new Core(data.module, data.store, data.exact);
    return;
  }
  line = line.then(async () => self.postMessage({ id: data.id, answer: await answerTo(data) } satisfies Reply));
};
