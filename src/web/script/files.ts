// What is packed into the page: the program and the documents that it reads.

// A file's name and bytes, each behind its length in four bytes, the low one first.
function split(packed: ArrayBuffer): Map<string, Uint8Array> {
  const files = new Map<string, Uint8Array>();
  const view = new DataView(packed);
  let at = 0;
  const next = (): Uint8Array => {
    const size = view.getUint32(at, true);
    at += 4 + size;
    return new Uint8Array(packed, at - size, size);
  };
  while (at < packed.byteLength) files.set(new TextDecoder().decode(next()), next());
  return files;
}

export async function unpackFiles(base64: string): Promise<Map<string, Uint8Array>> {
  const bytes = Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0));
  const unpacked = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
  return split(await new Response(unpacked).arrayBuffer());
}
