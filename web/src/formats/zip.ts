// Zip archives: written without compression, read stored or deflated.
const kCrc = Uint32Array.from({ length: 256 }, (_, n) => {
  for (let k = 0; k < 8; ++k) n = n & 1 ? (n >>> 1) ^ 0xedb88320 : n >>> 1;
  return n;
});

function crc32(data: Uint8Array): number {
  let crc = 0xffffffff;
  for (const byte of data) crc = kCrc[(crc ^ byte) & 0xff]! ^ (crc >>> 8);
  return ~crc >>> 0;
}

// An archive of files as they are.
export function zip(files: [name: string, data: Uint8Array | string][]): Uint8Array {
  const parts: Uint8Array[] = [];
  const list: Uint8Array[] = [];
  let at = 0;
  for (const [name, given] of files) {
    const path = new TextEncoder().encode(name);
    const data = typeof given === "string" ? new TextEncoder().encode(given) : given;
    // version 2.0, UTF-8 names, stored, 1980-01-01
    const common = [20, 0x800, 0, 0, 0x21];
    const head = new DataView(new ArrayBuffer(30));
    head.setUint32(0, 0x04034b50, true);
    common.forEach((value, i) => head.setUint16(4 + 2 * i, value, true));
    const entry = new DataView(new ArrayBuffer(46));
    entry.setUint32(0, 0x02014b50, true);
    entry.setUint16(4, 20, true);
    common.forEach((value, i) => entry.setUint16(6 + 2 * i, value, true));
    for (const [view, from] of [[head, 14], [entry, 16]] as const) {
      view.setUint32(from, crc32(data), true);
      view.setUint32(from + 4, data.length, true);
      view.setUint32(from + 8, data.length, true);
      view.setUint16(from + 12, path.length, true);
    }
    entry.setUint32(42, at, true);
    list.push(new Uint8Array(entry.buffer), path);
    parts.push(new Uint8Array(head.buffer), path, data);
    at += 30 + path.length + data.length;
  }
  const size = list.reduce((sum, part) => sum + part.length, 0);
  const end = new DataView(new ArrayBuffer(22));
  end.setUint32(0, 0x06054b50, true);
  end.setUint16(8, files.length, true);
  end.setUint16(10, files.length, true);
  end.setUint32(12, size, true);
  end.setUint32(16, at, true);
  return joined([...parts, ...list, new Uint8Array(end.buffer)]);
}

function joined(parts: Uint8Array[]): Uint8Array {
  const whole = new Uint8Array(parts.reduce((sum, part) => sum + part.length, 0));
  let at = 0;
  for (const part of parts) {
    whole.set(part, at);
    at += part.length;
  }
  return whole;
}

async function inflated(data: Uint8Array): Promise<Uint8Array> {
  const stream = new Blob([data as BlobPart]).stream().pipeThrough(new DecompressionStream("deflate-raw"));
  return new Uint8Array(await new Response(stream).arrayBuffer());
}

// Names are in UTF-8, or of the code page where archives are made without it.
function nameIn(bytes: Uint8Array): string {
  try {
    return new TextDecoder("utf-8", { fatal: true }).decode(bytes);
  } catch {
    return new TextDecoder("gbk").decode(bytes);
  }
}

// The files of an archive by their names, folders left out; throws for what is none, or is damaged.
export async function unzipped(bytes: Uint8Array): Promise<Map<string, Uint8Array>> {
  const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.length);
  let end = bytes.length - 22;
  while (view.getUint32(end, true) !== 0x06054b50) --end;
  const files = new Map<string, Uint8Array>();
  let at = view.getUint32(end + 16, true);
  for (let left = view.getUint16(end + 10, true); left > 0; --left) {
    const pathLength = view.getUint16(at + 28, true);
    const name = nameIn(bytes.subarray(at + 46, at + 46 + pathLength));
    const from = view.getUint32(at + 42, true);
    const start = from + 30 + view.getUint16(from + 26, true) + view.getUint16(from + 28, true);
    const packed = bytes.subarray(start, start + view.getUint32(at + 20, true));
    const data = view.getUint16(at + 10, true) === 8 ? await inflated(packed) : packed;
    if (crc32(data) !== view.getUint32(at + 16, true)) throw new Error(name);
    if (!name.endsWith("/")) files.set(name, data);
    at += 46 + pathLength + view.getUint16(at + 30, true) + view.getUint16(at + 32, true);
  }
  return files;
}
