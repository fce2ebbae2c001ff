// Starts the program: unpacks it, waits for the font in which the pictures are labelled, and makes
// the page.
import { NoWebAssembly, showFault } from "./fault";
import { unpackFiles } from "./files";
import { Page } from "./page";
import { WordPainter } from "./pictures";
import { Program } from "./program";
import type { Machine } from "./program";

// Browsers know the code pages that the web has.
function labelOf(codePage: number): string | undefined {
  const labels: Readonly<Record<number, string>> = {
    866: "ibm866", 874: "windows-874", 932: "shift_jis", 936: "gbk", 949: "euc-kr", 950: "big5",
  };
  const isOfWindows = codePage >= 1250 && codePage <= 1258;
  return labels[codePage] ?? (isOfWindows ? `windows-${codePage}` : undefined);
}

function decode(codePage: number, bytes: Uint8Array): string | undefined {
  const label = labelOf(codePage);
  if (label === undefined) return undefined;
  try {
    const text = new TextDecoder(label, { fatal: true }).decode(bytes);
    return /^[\x80-\x9f]$/.test(text) ? undefined : text; // a byte that the page does not define
  } catch {
    return undefined;
  }
}

async function start(): Promise<void> {
  if (typeof WebAssembly !== "object") throw new NoWebAssembly();
  const packed = document.getElementById("files")?.textContent ?? "";
  const fonts = ["", "bold "].map((weight) =>
    document.fonts.load(`${weight}12px "Selvane Text"`));
  const [files] = await Promise.all([unpackFiles(packed), ...fonts]);
  const module = files.get("selvane.wasm");
  if (!module) throw new Error("the program is missing");
  const words = new WordPainter();
  const machine: Machine = {
    now: () => new Date(),
    document: (name) => files.get(name),
    decode,
    words: (text, scale) => words.draw(text, scale),
  };
  const program = await Program.load(module, machine);
  const icon = document.querySelector<HTMLLinkElement>("link[rel=icon]")?.href ?? "";
  document.getElementById("waiting")?.remove();
  new Page(program, program.tables(), icon);
}

start().catch(showFault);
