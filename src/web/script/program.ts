// The program as a WebAssembly module: its entry points, what they change, its pictures.
import type { Changes, Tables } from "./tables";

export type Entry = "scroll" | "step_bar" | "page_bar" | "click" | "choose" | "click_label" | "tick"
  | "activate" | "close_window" | "click_topic" | "click_about" | "follow";

interface Exports {
  readonly memory: WebAssembly.Memory;
  _initialize(): void;
  start(): void;
  input(bytes: number): number;
  output(): number;
  tables(): number;
  changes(): number;
  type(field: number, bytes: number): void;
  paint(picture: number, scale: number): number;
}
type Events = Record<Entry, (first: number, second?: number) => void>;

// What the program needs of the machine that it runs on.
export interface Machine {
  now(): Date;
  document(name: string): Uint8Array | undefined;
  // A character of a code page; nothing where the machine does not know it.
  decode(codePage: number, bytes: Uint8Array): string | undefined;
  // White words on nothing, in device pixels; the program takes their coverage.
  words(text: string, scale: number): ImageData;
}

export class OutOfMemory extends Error {}

// A part of a picture that is to be shown anew, in device pixels.
export interface Painted {
  readonly left: number;
  readonly top: number;
  readonly image: ImageData;
}

const utf8 = new TextDecoder();
const toUtf8 = new TextEncoder();

export class Program {
  private constructor(private readonly exports: Exports & Events) {}

  static async load(module: Uint8Array, machine: Machine): Promise<Program> {
    let program: Program | undefined;
    const loaded = (): Program => {
      if (!program) throw new Error("called before it is loaded");
      return program;
    };
    // The C library's own streams: there are none.
    const badFile = (): number => 8;
    const { instance } = await WebAssembly.instantiate(module as BufferSource, {
      machine: {
        now: (to: number) => loaded().writeTime(machine.now(), to),
        read_document: (name: number, size: number) =>
          loaded().hand(machine.document(loaded().text(name, size))),
        decode: (page: number, from: number, size: number) => {
          const text = machine.decode(page, loaded().bytes(from, size).slice());
          return loaded().hand(text === undefined ? undefined : toUtf8.encode(text));
        },
        draw_words: (text: number, size: number, scale: number) =>
          loaded().handMask(machine.words(loaded().text(text, size), scale)),
        out_of_memory: () => {
          throw new OutOfMemory();
        },
      },
      wasi_snapshot_preview1: { fd_close: badFile, fd_seek: badFile, fd_write: badFile },
    });
    program = new Program(instance.exports as unknown as Exports & Events);
    program.exports._initialize();
    program.exports.start();
    return program;
  }

  tables(): Tables {
    return this.outputOf(this.exports.tables()) as Tables;
  }

  // Since the last call.
  changes(): Changes {
    return this.outputOf(this.exports.changes()) as Changes;
  }

  run(entry: Entry, first: number, second?: number): void {
    this.exports[entry](first, second);
  }

  type(field: number, text: string): void {
    this.exports.type(field, this.put(toUtf8.encode(text)));
  }

  // What differs from what was painted last at that scale; nothing where it is the same.
  paint(picture: number, scale: number): Painted | undefined {
    const at = this.exports.paint(picture, scale);
    const [left = 0, top = 0, width = 0, height = 0, pixels = 0] =
      new Int32Array(this.exports.memory.buffer, at, 5);
    if (width === 0 || height === 0) return undefined;
    const bytes = new Uint8ClampedArray(this.exports.memory.buffer, pixels, width * height * 4);
    return { left, top, image: new ImageData(bytes, width, height) };
  }

  private outputOf(size: number): unknown {
    return JSON.parse(this.text(this.exports.output(), size));
  }

  private bytes(at: number, size: number): Uint8Array {
    return new Uint8Array(this.exports.memory.buffer, at, size);
  }

  private text(at: number, size: number): string {
    return utf8.decode(this.bytes(at, size));
  }

  private put(bytes: Uint8Array): number {
    this.bytes(this.exports.input(bytes.length), bytes.length).set(bytes);
    return bytes.length;
  }

  // Minus one for what is not there.
  private hand(bytes: Uint8Array | undefined): number {
    return bytes ? this.put(bytes) : -1;
  }

  // Only the coverage goes over; the size comes back in one number.
  private handMask(words: ImageData): number {
    const coverage = this.bytes(this.exports.input(words.width * words.height),
                                words.width * words.height);
    for (let at = 0; at < coverage.length; ++at) coverage[at] = words.data[4 * at + 3] ?? 0;
    return words.width * 65536 + words.height;
  }

  private writeTime(time: Date, to: number): void {
    new Int32Array(this.exports.memory.buffer, to, 6).set([
      time.getFullYear(), time.getMonth() + 1, time.getDate(),
      time.getHours(), time.getMinutes(), time.getSeconds(),
    ]);
  }
}
