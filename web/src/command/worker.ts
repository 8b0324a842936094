// Runs command lines one after the other, on the own store as the browser keeps it.
import { Core, type Answer, type Files } from "./core";
import { OwnStore, StorageError, type Trouble } from "./own_store";

// The core and the catalogue, each packed (gzip) and in base64.
export interface Start {
  wasm: string;
  store: string;
  exact: string;
  storage: boolean; // whether the browser lets the page keep anything
}
export type Order =
  | { id: number; kind: "run"; argv: string[]; files: Files; language: string }
  | { id: number; kind: "forget" }
  | { id: number; kind: "kept" }
  | { id: number; kind: "renew" };
// Beside the answers, which have the number of their order: that the own store was saved, that there is none any
// more, or that the browser could not write or read it.
export type Reply = { id: number; answer: Answer } | "saved" | "forgotten" | "torn";

let own: OwnStore;
let core: Promise<Core>;
let line: Promise<unknown> = Promise.resolve();

const kTroubles: Record<Trouble | "old", [string, string]> = {
  full: ["您自己的库: 没有写入，磁盘已满；请先导出自己的库，再关闭浏览器", "your own store: not written, the disk is full; export the own store before you close the browser"],
  denied: ["您自己的库: 没有写入，浏览器不允许本页保存数据", "your own store: not written, the browser does not let this page keep data"],
  failed: ["您自己的库: 没有写入，浏览器未能写入（磁盘可能已满）；请先导出自己的库，再关闭浏览器", "your own store: not written, the browser could not write it (the disk may be full); export the own store before you close the browser"],
  unread: ["您自己的库: 浏览器未能读出（磁盘可能已满；请腾出空间，在此之前不要关闭浏览器）", "your own store: the browser could not read it (the disk may be full: make room before you close the browser)"],
  old: ["此浏览器不能运行本页；需要 Chrome 或 Edge 103、Firefox 113、Safari 16.4 或更新的版本", "this browser cannot run the page; it takes Chrome or Edge 103, Firefox 113, Safari 16.4 or newer"],
};

class BrowserTooOld extends Error {}

// Decodes and unpacks as it is read.
function unpacked(base64: string): Response {
  const text = atob(base64);
  const packed = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) packed[i] = text.charCodeAt(i);
  const stream = new Blob([packed]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(stream, { headers: { "content-type": "application/wasm" } });
}

async function startCore(inside: Start): Promise<Core> {
  const bytes = async (base64: string) => new Uint8Array(await unpacked(base64).arrayBuffer());
  try {
    const module = WebAssembly.compileStreaming(unpacked(inside.wasm));
    return new Core(...(await Promise.all([module, bytes(inside.store), bytes(inside.exact)])));
  } catch {
    throw new BrowserTooOld();
  }
}

const kNothing: Answer = { status: 3, out: "", err: "", files: {} };

// What a line says, and leaves, that the browser has stopped.
function stopped(fault: unknown, argv: string[], language: string): Answer {
  const chosen = argv.indexOf("--lang");
  const chinese = (chosen >= 0 ? argv[chosen + 1] : language) === "zh";
  const trouble = fault instanceof StorageError ? fault.trouble : fault instanceof BrowserTooOld ? "old" : "failed";
  const [zh, en] = kTroubles[trouble];
  return { ...kNothing, err: `orv3cal: ${chinese ? zh : en}\n` };
}

function same(a: Uint8Array | null, b: Uint8Array | null): boolean {
  if (!a || !b) return a === b;
  if (a.length !== b.length) return false;
  for (let i = 0; i < a.length; ++i) if (a[i] !== b[i]) return false;
  return true;
}

async function save(bytes: Uint8Array | null, before: number): Promise<boolean> {
  const isSaved = await own.save(bytes, before);
  if (isSaved) self.postMessage((bytes ? "saved" : "forgotten") satisfies Reply);
  return isSaved;
}

// A run that another tab's save has overtaken is done again on that save.
async function run(argv: string[], files: Files): Promise<Answer> {
  for (;;) {
    const before = await own.load();
    const { own: after, ...answer } = await (await core).run(argv, files, before.bytes);
    if (same(before.bytes, after) || (await save(after, before.version))) return answer;
  }
}

async function forget(): Promise<Answer> {
  while (!(await save(null, (await own.load()).version)));
  return { ...kNothing, status: 0 };
}

// Status 0 when there is a store of the user's own, 1 when there is none.
async function kept(): Promise<Answer> {
  return { ...kNothing, status: (await own.load()).bytes ? 0 : 1 };
}

async function renew(): Promise<Answer> {
  await own.renew();
  return { ...kNothing, status: 0 };
}

async function answerTo(order: Order): Promise<Answer> {
  const [argv, language] = order.kind === "run" ? [order.argv, order.language] : [[], "en"];
  try {
    if (order.kind === "run") return await run(order.argv, order.files);
    return await { kept, forget, renew }[order.kind]();
  } catch (fault) {
    if (fault instanceof StorageError || fault instanceof DOMException || fault instanceof BrowserTooOld) return stopped(fault, argv, language);
    return { ...kNothing, err: `orv3cal: ${String(fault)}\n` };
  }
}

self.onmessage = ({ data }: MessageEvent<Start | Order>) => {
  if ("wasm" in data) {
    own = new OwnStore(data.storage, () => self.postMessage("torn" satisfies Reply));
    core = startCore(data);
    return;
  }
  line = line.then(async () => self.postMessage({ id: data.id, answer: await answerTo(data) } satisfies Reply));
};
