// Files in addresses: compressed, in letters that an address takes as they are.

async function through(data: Uint8Array, stream: CompressionStream | DecompressionStream): Promise<Uint8Array> {
  return new Uint8Array(await new Response(new Blob([data as BlobPart]).stream().pipeThrough(stream)).arrayBuffer());
}

export async function pack(data: Uint8Array): Promise<string> {
  const packed = await through(data, new CompressionStream("deflate-raw"));
  const binary = packed.reduce((text, byte) => text + String.fromCharCode(byte), "");
  return btoa(binary).replaceAll("+", "-").replaceAll("/", "_").replace(/=+$/, "");
}

// Throws for what `pack` has not made.
export async function unpack(text: string): Promise<Uint8Array> {
  const binary = atob(text.replaceAll("-", "+").replaceAll("_", "/"));
  return through(Uint8Array.from(binary, (ch) => ch.charCodeAt(0)), new DecompressionStream("deflate-raw"));
}
