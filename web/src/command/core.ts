// The command in this worker: every run is a process of its own, with files of its own, in a fresh
// instance of the module.

export interface Answer {
  status: number;
  out: string;
  err: string;
  files: Record<string, Uint8Array>; // what the command has written to its folder
}

export type Files = Record<string, string | Uint8Array>;

interface Node {
  mode: number;
}
interface FileSystem {
  mkdirTree(path: string): void;
  chdir(path: string): void;
  symlink(from: string, to: string): void;
  writeFile(path: string, data: string | Uint8Array): void;
  createDataFile(folder: string, name: string, data: Uint8Array, read: boolean, write: boolean, own: boolean): void;
  readFile(path: string): Uint8Array;
  readdir(path: string): string[];
  stat(path: string): Node;
  isDir(mode: number): boolean;
  open(path: string, flags: string): unknown;
  close(stream: unknown): void;
  streams: unknown[];
}
interface Instance {
  FS: FileSystem;
  ENV: Record<string, string>;
  callMain(args: string[]): number | undefined;
}

declare function makeOrv3cal(options: object): Promise<Instance>;

const kShipped = "/usr/share/orv3cal";
const kFolder = "/work"; // where a run finds its files and leaves its own
const kOwnFolder = "/home/.local/share/orv3cal";
const kStore = "KvbSystemJmDataBase.KDB";
const kExact = "KvbSystemJmDataBase.KXP";

const kPause = 300; // ms

export class Core {
  private next: Promise<{ instance: Instance; exit: { status: number } }>;

  constructor(
    private readonly module: WebAssembly.Module,
    private readonly store: Uint8Array,
    private readonly exact: Uint8Array,
  ) {
    this.next = this.prepare();
  }

  // `own` is the user's own store, null for none; the answer has the store that the run leaves.
  async run(argv: string[], files: Files, own: Uint8Array | null): Promise<Answer & { own: Uint8Array | null }> {
    const { instance, exit } = await this.next.catch(() => this.prepareLater());
    const { FS } = instance;
    try {
      if (own) {
        FS.mkdirTree(kOwnFolder);
        FS.writeFile(`${kOwnFolder}/${kStore}`, own);
      }
      for (const [name, data] of Object.entries(files)) FS.writeFile(`${kFolder}/${plain(name)}`, data);
      redirect(FS, 1, "/out");
      redirect(FS, 2, "/err");
      const status = run(instance, argv, exit);
      const text = (path: string) => new TextDecoder("utf-8", { ignoreBOM: true }).decode(FS.readFile(path)); // a CSV begins with its mark
      return {
        status,
        out: text("/out"),
        err: text("/err"),
        files: written(FS, files),
        own: exists(FS, `${kOwnFolder}/${kStore}`) ? FS.readFile(`${kOwnFolder}/${kStore}`) : null,
      };
    } finally {
      this.next = this.prepare();
    }
  }

  // Once more, when the browser has had time to take back the memory of runs that are over.
  private async prepareLater() {
    await new Promise((done) => setTimeout(done, kPause));
    return this.prepare();
  }

  private async prepare() {
    const exit = { status: 0 };
    const instance = await new Promise<Instance>((made, failed) => void makeOrv3cal({
      noInitialRun: true,
      preRun: [(instance: Instance) => void (instance.ENV["HOME"] = "/home")], // read as the module starts
      print: () => {},
      printErr: () => {},
      quit: (status: number, thrown: unknown) => {
        exit.status = status;
        throw thrown;
      },
      instantiateWasm: (imports: WebAssembly.Imports, done: (instance: WebAssembly.Instance) => void) => {
        WebAssembly.instantiate(this.module, imports).then(done, failed);
        return {};
      },
    }).then(made, failed));
    const { FS } = instance;
    for (const folder of [kShipped, kFolder, "/usr/bin", "/home"]) FS.mkdirTree(folder);
    FS.symlink("/usr/bin/orv3cal", "/proc/self/exe"); // beside which the catalogue lies
    FS.createDataFile(kShipped, kStore, this.store, true, false, true);
    FS.createDataFile(kShipped, kExact, this.exact, true, false, true);
    FS.chdir(kFolder);
    return { instance, exit };
  }
}

function run(instance: Instance, argv: string[], exit: { status: number }): number {
  try {
    return instance.callMain([...argv]) ?? exit.status;
  } catch (fault) {
    if ((fault as { name?: string }).name === "ExitStatus") return exit.status;
    const memory = fault instanceof RangeError || fault instanceof WebAssembly.RuntimeError;
    instance.FS.writeFile("/err", `orv3cal: ${memory ? "the memory of this page does not suffice" : String(fault)}\n`);
    return 3;
  }
}

// A name stands for a file of the run's own folder.
function plain(name: string): string {
  return name.split(/[\\/]/).at(-1) || "file";
}

function redirect(FS: FileSystem, handle: number, path: string) {
  FS.close(FS.streams[handle]);
  FS.open(path, "w+");
}

function exists(FS: FileSystem, path: string): boolean {
  try {
    FS.stat(path);
    return true;
  } catch {
    return false;
  }
}

function written(FS: FileSystem, given: Files): Record<string, Uint8Array> {
  const made: Record<string, Uint8Array> = {};
  const known = new Set(Object.keys(given).map(plain));
  for (const name of FS.readdir(kFolder)) {
    if (name === "." || name === ".." || known.has(name)) continue;
    if (!FS.isDir(FS.stat(`${kFolder}/${name}`).mode)) made[name] = FS.readFile(`${kFolder}/${name}`);
  }
  return made;
}
