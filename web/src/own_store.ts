// The user's own store in the browser's database: one record, replaced whole in one transaction, so
// that it is always as before a save or as after it.

export interface Saved {
  version: number; // counts the saves
  bytes: Uint8Array | null;
}

// Why the browser has not kept a store.
export type Trouble = "denied" | "full" | "failed";

export class StorageError extends Error {
  constructor(readonly trouble: Trouble) {
    super(trouble);
  }
}

const kTable = "stores";
const kKey = "own";
const kNone: Saved = { version: 0, bytes: null };

function troubleOf(fault: unknown): StorageError {
  const name = (fault as DOMException | null)?.name;
  if (name === "QuotaExceededError") return new StorageError("full");
  return new StorageError(name === "SecurityError" || name === "InvalidStateError" ? "denied" : "failed");
}

export class OwnStore {
  private database: Promise<IDBDatabase> | null = null;

  private open(): Promise<IDBDatabase> {
    this.database ??= new Promise<IDBDatabase>((done, fail) => {
      try {
        const asked = indexedDB.open("orv3cal", 1);
        asked.onupgradeneeded = () => asked.result.createObjectStore(kTable);
        asked.onsuccess = () => done(asked.result);
        asked.onerror = () => fail(troubleOf(asked.error));
      } catch (fault) {
        fail(troubleOf(fault));
      }
    });
    return this.database;
  }

  // None where the browser keeps nothing.
  async load(): Promise<Saved> {
    const database = await this.open().catch(() => null);
    if (!database) return kNone;
    return new Promise((done) => {
      const asked = database.transaction(kTable).objectStore(kTable).get(kKey);
      asked.onsuccess = () => done((asked.result as Saved | undefined) ?? kNone);
      asked.onerror = () => done(kNone);
    });
  }

  // False when another tab has saved since `before` was loaded: then nothing is changed.
  async save(bytes: Uint8Array | null, before: number): Promise<boolean> {
    const database = await this.open();
    return new Promise((done, fail) => {
      let current = true;
      const transaction = database.transaction(kTable, "readwrite", { durability: "strict" });
      transaction.oncomplete = () => done(current);
      transaction.onabort = () => (current ? fail(troubleOf(transaction.error)) : done(false));
      const table = transaction.objectStore(kTable);
      const asked = table.get(kKey);
      asked.onsuccess = () => {
        const version = (asked.result as Saved | undefined)?.version ?? 0;
        current = version === before;
        if (current) table.put({ version: version + 1, bytes } satisfies Saved, kKey);
        else transaction.abort();
      };
    });
  }
}
