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
  full: ["磁盘已满", "the disk is full"],
  denied: ["浏览器不允许本页保存数据", "the browser does not let this page keep data"],
  failed: ["浏览器未能写入", "the browser could not write it"],
};

function notKept(answer: Answer, argv: string[], language: string, trouble: Trouble): Answer {
  const chosen = argv.indexOf("--lang");
  const chinese = (chosen >= 0 ? argv[chosen + 1] : language) === "zh";
  const [zh, en] = kTroubles[trouble];
  const err = chinese ? `orv3cal: 您自己的库: 没有写入，${zh}\n` : `orv3cal: your own store: not written, ${en}\n`;
  return { ...answer, status: 3, out: "", err, files: {} };
}

function same(a: Uint8Array | null, b: Uint8Array | null): boolean {
  if (!a || !b) return a === b;
  return a.length === b.length && a.every((byte, i) => byte === b[i]);
}

// A run that another tab's save has overtaken is done again on that save.
async function run(argv: string[], files: Files, language: string): Promise<Answer> {
  for (;;) {
    const before = await own.load();
    const { own: after, ...answer } = await core.run(argv, files, before.bytes);
    if (same(before.bytes, after)) return answer;
    try {
      if (await own.save(after, before.version)) return answer;
    } catch (fault) {
      return notKept(answer, argv, language, fault instanceof StorageError ? fault.trouble : "failed");
    }
  }
}

async function forget(): Promise<Answer> {
  const answer: Answer = { status: 0, out: "", err: "", files: {} };
  try {
    while (!(await own.save(null, (await own.load()).version)));
    return answer;
  } catch (fault) {
    return notKept(answer, [], "en", fault instanceof StorageError ? fault.trouble : "failed");
  }
}

async function answerTo(order: Order): Promise<Answer> {
  try {
    return order.kind === "run" ? await run(order.argv, order.files, order.language) : await forget();
  } catch (fault) {
    return { status: 3, out: "", err: `orv3cal: ${String(fault)}\n`, files: {} };
  }
}

self.onmessage = ({ data }: MessageEvent<Start | Order>) => {
  if ("module" in data) {
    core = new Core(data.module, data.store, data.exact);
    return;
  }
  line = line.then(async () => self.postMessage({ id: data.id, answer: await answerTo(data) } satisfies Reply));
};
