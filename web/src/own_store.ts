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
  const name = (fault as DOMException | null)?.name;
  if (name === "QuotaExceededError") return new StorageError("full");
  return new StorageError(name === "SecurityError" || name === "InvalidStateError" ? "denied" : "failed");
}

export class OwnStore {
  private database: Promise<IDBDatabase> | null = null;
  private known: Saved | null = null;

  // A connection that was refused or has been closed (the user deletes what pages keep) is asked for anew.
  private open(): Promise<IDBDatabase> {
    const forget = () => (this.database = null);
    this.database ??= new Promise<IDBDatabase>((done, fail) => {
      try {
        const asked = indexedDB.open("orv3cal", 1);
        asked.onupgradeneeded = () => asked.result.createObjectStore(kTable);
        asked.onsuccess = () => {
          asked.result.onclose = forget;
          asked.result.onversionchange = () => void (asked.result.close(), forget());
          done(asked.result);
        };
        asked.onerror = () => void (forget(), fail(troubleOf(asked.error)));
      } catch (fault) {
        forget();
        fail(troubleOf(fault));
      }
    });
    return this.database;
  }

  // None where the browser keeps nothing; a store that is there and cannot be read is an error.
  async load(): Promise<Saved> {
    const database = await this.open().catch(() => null);
    if (!database) return kNone;
    return new Promise((done, fail) => {
      const table = database.transaction(kTable).objectStore(kTable);
      const unread = () => fail(new StorageError("unread"));
      const read = () => {
        const asked = table.get(kKey);
        asked.onsuccess = () => done((this.known = (asked.result as Saved | undefined) ?? kNone));
        asked.onerror = unread;
      };
      const version = table.get(kVersion);
      version.onsuccess = () => (this.known && version.result === this.known.version ? done(this.known) : read());
      version.onerror = unread;
    });
  }

  // False when another tab has saved since `before` was loaded: then nothing is changed.
  async save(bytes: Uint8Array | null, before: number): Promise<boolean> {
    const database = await this.open();
    return new Promise((done, fail) => {
      let current = true;
      let fault: unknown = null;
      const transaction = database.transaction(kTable, "readwrite", { durability: "strict" });
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
