// What is packed into the page: the program and the documents that it reads.
import { gunzipSync } from "fflate";

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

// A browser of before 2023 may not unpack by itself.
async function unzip(bytes: Uint8Array<ArrayBuffer>): Promise<ArrayBuffer> {
  if (typeof DecompressionStream !== "function") return gunzipSync(bytes).buffer as ArrayBuffer;
  const unpacked = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(unpacked).arrayBuffer();
}

export async function unpackFiles(base64: string): Promise<Map<string, Uint8Array>> {
  return split(await unzip(Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0))));
}
