// The user's own store in the browser's database: one record, replaced whole in one transaction, so
// that it is always as before a save or as after it. The number of the save stands beside it, so that a
// store that has not changed is not read again.

export interface Saved {
  version: number; // of the save: its time, or one more than the last
  bytes: Uint8Array | null;
}

// Why the browser has not kept or not given a store.
export type Trouble = "denied" | "full" | "failed" | "unread";

export class StorageError extends Error {
  constructor(readonly trouble: Trouble) {
    super(trouble);
  }
}

const kTable = "stores";
const kKey = "own";
const kVersion = "version";
const kFilling = "filling";
const kFillings = [5, 32, 32_768] as const; // transactions of so many values of so many bytes
const kNone: Saved = { version: 0, bytes: null };

function troubleOf(fault: unknown): StorageError {
  if (fault instanceof StorageError) return fault;
  const { name = "", message = "" } = (fault ?? {}) as Partial<DOMException>;
  if (name === "QuotaExceededError" || /NO_SPACE|disk/i.test(message)) return new StorageError("full");
  return new StorageError(name === "SecurityError" || name === "InvalidStateError" ? "denied" : "failed");
}

export class OwnStore {
  private database: Promise<IDBDatabase> | null = null;
  private known: Saved | null = null;
  private isTorn = false; // a write or a read has failed, and the browser may lose, or have lost, what it keeps

  // `allowed`: whether the browser lets this page keep anything. A database that is refused has no other sign
  // of why: a browser that keeps nothing and a full disk say the same.
  constructor(private readonly allowed: boolean, private readonly torn: () => void) {}

  private open(): Promise<IDBDatabase> {
    const forget = () => (this.database = null);
    this.database ??= new Promise<IDBDatabase>((done, fail) => {
      if (!this.allowed) throw new StorageError("denied");
      const asked = indexedDB.open("orv3cal", 1);
      asked.onupgradeneeded = () => asked.result.createObjectStore(kTable);
      asked.onsuccess = () => {
        asked.result.onclose = forget;
        asked.result.onversionchange = () => void (asked.result.close(), forget());
        done(asked.result);
      };
      asked.onerror = () => fail(asked.error);
    }).catch((fault) => {
      forget();
      throw troubleOf(fault);
    });
    return this.database;
  }

  // A connection that the browser has closed (the user deletes what pages keep, the disk was full) is asked for
  // anew.
  private async begin(mode: IDBTransactionMode): Promise<IDBTransaction> {
    const started = async () => (await this.open()).transaction(kTable, mode, { durability: "strict" });
    return started().catch((fault) => {
      if (fault instanceof StorageError) throw fault;
      this.database = null;
      return started();
    });
  }

  // None where the browser keeps nothing. A store that cannot be read is what it last was, or an error: nobody is to go
  // on without what is kept.
  async load(): Promise<Saved> {
    try {
      const transaction = await this.begin("readonly");
      const now = await this.read(transaction.objectStore(kTable));
      if (now === kNone && this.isTorn && this.known) return this.known;
      return (this.known = now);
    } catch (fault) {
      if (fault instanceof StorageError && fault.trouble === "denied" && !this.known?.bytes) return kNone;
      this.tear();
      if (this.known?.bytes) return this.known;
      throw new StorageError("unread");
    }
  }

  private tear(): void {
    this.isTorn = true;
    this.torn();
  }

  private read(table: IDBObjectStore): Promise<Saved> {
    return new Promise((done, fail) => {
      const version = table.get(kVersion);
      version.onsuccess = () => {
        if (this.known && version.result === this.known.version) return done(this.known);
        const asked = table.get(kKey);
        asked.onsuccess = () => done((asked.result as Saved | undefined) ?? kNone);
        asked.onerror = () => fail(asked.error);
      };
      version.onerror = () => fail(version.error);
    });
  }

  // After a full disk: Chromium goes on in a journal in which a record has stayed torn, and at its next start drops
  // all that stands there, what was kept before as well. Once more has been written than a journal takes
  // (4 MB), it has begun another; then the store is written once more. The values are too small to be put beside the
  // journal, and random so as not to shrink. A write that fails can stop reads too: so the store is read before.
  async renew(): Promise<void> {
    this.isTorn = true;
    await this.load();
    const [times, values, size] = kFillings;
    for (let time = 0; time <= times; ++time) {
      const transaction = await this.begin("readwrite");
      const table = transaction.objectStore(kTable);
      if (time === times) table.delete(IDBKeyRange.bound([kFilling], [kFilling, values]));
      else for (let i = 0; i < values; ++i) table.put(crypto.getRandomValues(new Uint8Array(size)), [kFilling, i]);
      await new Promise<void>((done, fail) => {
        transaction.oncomplete = () => done();
        transaction.onabort = () => fail(troubleOf(transaction.error));
      });
    }
    const { bytes, version } = await this.load();
    if (bytes) await this.write(bytes, version);
    this.isTorn = false;
  }

  // False when another tab has saved since `before` was loaded: then nothing is changed.
  async save(bytes: Uint8Array | null, before: number): Promise<boolean> {
    return this.write(bytes, before).catch((fault) => {
      const refused = troubleOf(fault);
      if (refused.trouble !== "denied") this.tear();
      throw refused;
    });
  }

  private async write(bytes: Uint8Array | null, before: number): Promise<boolean> {
    const transaction = await this.begin("readwrite");
    return new Promise((done, fail) => {
      let current = true;
      let fault: unknown = null;
      transaction.oncomplete = () => done(true);
      transaction.onabort = () => (current ? fail(troubleOf(fault ?? transaction.error)) : done(false));
      const table = transaction.objectStore(kTable);
      const asked = table.get(kKey);
      asked.onsuccess = () => {
        const version = (asked.result as Saved | undefined)?.version ?? (this.isTorn ? before : 0);
        current = version === before;
        try {
          if (current) {
            const next = Math.max(version + 1, Date.now());
            table.put({ version: next, bytes } satisfies Saved, kKey);
            table.put(next, kVersion);
          }
        } catch (refused) {
          fault = refused;
        }
        if (!current || fault) transaction.abort();
      };
    });
  }
}
