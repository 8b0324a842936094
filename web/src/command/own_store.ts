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

  // `allowed`: whether the browser lets this page keep anything. A database that is refused has no other sign
  // of why: a browser that keeps nothing and a full disk say the same.
  constructor(private readonly allowed: boolean) {}

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

  // None where the browser keeps nothing. A store that cannot be read is an error: nobody is to go on without
  // what is kept.
  async load(): Promise<Saved> {
    try {
      const transaction = await this.begin("readonly");
      return await this.read(transaction.objectStore(kTable));
    } catch (fault) {
      if (fault instanceof StorageError && fault.trouble === "denied" && !this.known?.bytes) return kNone;
      throw new StorageError("unread");
    }
  }

  private read(table: IDBObjectStore): Promise<Saved> {
    return new Promise((done, fail) => {
      const version = table.get(kVersion);
      version.onsuccess = () => {
        if (this.known && version.result === this.known.version) return done(this.known);
        const asked = table.get(kKey);
        asked.onsuccess = () => done((this.known = (asked.result as Saved | undefined) ?? kNone));
        asked.onerror = () => fail(asked.error);
      };
      version.onerror = () => fail(version.error);
    });
  }

  // False when another tab has saved since `before` was loaded: then nothing is changed.
  async save(bytes: Uint8Array | null, before: number): Promise<boolean> {
    const transaction = await this.begin("readwrite");
    return new Promise((done, fail) => {
      let current = true;
      let fault: unknown = null;
      transaction.oncomplete = () => done(true);
      transaction.onabort = () => (current ? fail(troubleOf(fault ?? transaction.error)) : done(false));
      const table = transaction.objectStore(kTable);
      const asked = table.get(kKey);
      asked.onsuccess = () => {
        const version = (asked.result as Saved | undefined)?.version ?? 0;
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
