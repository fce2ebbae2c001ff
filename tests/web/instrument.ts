// What runs in the page before its own script, where a test wants the machine in its hand: the clock
// stands still until it is set, timers tick on request, documents can be missing, nothing is opened.
// It also reaches the module's functions for tests.

export interface PageTest {
  readonly missing: Set<string>; // documents
  readonly requests: string[]; // what the program asked for, as replay prints it
  setClock(time: string): void; // local, "2012-07-28T14:48:46"
  tick(timer: string): void; // nothing where it is off
  waits(timer: string): number; // ms until its next tick; minus one: it is off
  dump(listed?: boolean): Record<string, string>; // listed: with every stroke
  compare(actions: readonly string[]): string;
  call(name: string, ...numbers: number[]): number;
  text(name: string, input: string, ...numbers: number[]): string; // a function with text
}

declare global {
  interface Window {
    pageTest: PageTest;
  }
}

type Functions = Record<string, (...numbers: number[]) => number>;

export function instrument(): void {
  const missing = new Set<string>();
  const requests: string[] = [];
  let exports: Functions = {}, memory: WebAssembly.Memory | undefined;

  const RealDate = Date;
  let clock = new Date(2012, 6, 28, 14, 48, 46).getTime();
  window.Date = new Proxy(RealDate, {
    construct: (target, words) => Reflect.construct(target, words.length > 0 ? words : [clock]),
  });
  function setClock(words: string): void {
    const [year = 0, month = 1, ...rest] = words.split(/[-T:]/).map(Number);
    const set = new RealDate(year, month - 1, ...(rest as [number]));
    if (year < 100) set.setFullYear(year);
    clock = set.getTime();
  }

  window.open = (target) => {
    requests.push(`open ${String(target)}`);
    return null;
  };
  const showModal = HTMLDialogElement.prototype.showModal;
  HTMLDialogElement.prototype.showModal = function show(): void {
    requests.push(`message ${this.querySelector("p")?.textContent ?? ""}`);
    showModal.call(this);
  };

  // The program's own timers are those that bear its names.
  const waiting = new Map<string, { handle: number; run: (timer: string) => void; due: number }>();
  let time = 0, handles = 1_000_000;
  performance.now = () => time;
  const setTimer = window.setTimeout.bind(window), clearTimer = window.clearTimeout.bind(window);
  window.setTimeout = ((run: () => void, wait = 0, ...words: unknown[]) => {
    if (typeof words[0] !== "string") return setTimer(run, wait, ...words);
    waiting.set(words[0], { handle: ++handles, run, due: time + wait });
    return handles;
  }) as typeof window.setTimeout;
  window.clearTimeout = (handle) => {
    for (const [timer, each] of waiting) if (each.handle === handle) waiting.delete(timer);
    clearTimer(handle);
  };
  function tick(timer: string): void {
    const found = waiting.get(timer);
    if (!found) return;
    waiting.delete(timer);
    time = Math.max(time, found.due);
    found.run(timer);
  }

  const bytes = (at: number, size: number) => new Uint8Array(memory!.buffer, at, size);
  const instantiate = WebAssembly.instantiate.bind(WebAssembly);
  WebAssembly.instantiate = (async (module: BufferSource, imports: Record<string, Functions>) => {
    const { machine = {}, wasi_snapshot_preview1: streams = {} } = imports;
    const loaded = await instantiate(module, {
      machine: {
        ...machine,
        read_document: (at: number, size: number) =>
          missing.has(new TextDecoder().decode(bytes(at, size))) ? -1
            : machine["read_document"]!(at, size),
      },
      // What tests link besides asks for the environment, which is empty.
      wasi_snapshot_preview1: {
        ...streams, environ_get: () => 0, proc_exit: () => 0,
        environ_sizes_get: (count: number, size: number) => {
          for (const at of [count, size]) bytes(at, 4).fill(0);
          return 0;
        },
      },
    });
    exports = loaded.instance.exports as unknown as Functions;
    memory = loaded.instance.exports["memory"] as WebAssembly.Memory;
    return loaded;
  }) as typeof WebAssembly.instantiate;

  const call = (name: string, ...numbers: number[]): number => exports[name]!(...numbers);
  function text(name: string, input: string, ...numbers: number[]): string {
    const given = new TextEncoder().encode(input);
    if (given.length > 0) bytes(call("input", given.length), given.length).set(given);
    const size = call(name, ...(given.length > 0 ? [given.length] : []), ...numbers);
    return new TextDecoder().decode(bytes(call("output"), size));
  }
  function dump(listed = false): Record<string, string> {
    const values: Record<string, string> = {};
    for (const line of text("test_dump", "", Number(listed)).split("\n")) {
      const at = line.indexOf("=");
      values[line.slice(0, at)] = line.slice(at + 1);
    }
    return values;
  }

  // What the page shows where a record has that property, as the dump writes it; nothing where the
  // property cannot be seen.
  function shownAs(name: string, property: string): string | undefined {
    if (property === "enabled") return waiting.has(name) ? "1" : "0";
    const element = document.getElementById(name);
    if (!element) return undefined;
    switch (property) {
      case "visible": return (name.startsWith("scl") ? element.parentElement! : element).hidden ? "0" : "1";
      case "value": case "min": case "max": return (element as HTMLInputElement)[property];
      case "text": return (element as HTMLInputElement).value;
      case "checked": return element.getAttribute("aria-checked") === "true" ? "1" : "0";
      case "caption": return element.textContent ?? "";
      case "tooltip": return element.title;
      default: return undefined;
    }
  }

  // The first property of a record that the page shows otherwise.
  function disagreement(): string {
    const record = dump();
    if (record["window.running"] !== "1") return "";
    if (record["lblSat.left"] === "-") record["lblSat.visible"] = "0"; // it has no place yet
    for (const [key, value] of Object.entries(record)) {
      const at = key.lastIndexOf(".");
      const shown = shownAs(key.slice(0, at), key.slice(at + 1));
      const plain = value.replace(/\\(.)/g, (_, letter: string) =>
        ({ n: "\n", r: "\r" })[letter] ?? letter);
      if (shown !== undefined && shown !== plain) return `${key}=${value}, shown: ${shown}`;
    }
    for (const [window, id] of [["guide", "frmUserGuide"], ["about", "frmAbout"]] as const)
      if (Object.keys(record).some((key) => key.startsWith(`${window}.`)) !==
          (document.getElementById(id) !== null)) return id;
    return "";
  }

  // The page has carried the actions out; the twin does now. What differs then.
  function compare(actions: readonly string[]): string {
    document.querySelector<HTMLElement>("dialog.message button")?.click();
    for (const action of actions) text("test_twin_do", action);
    const asked = `${requests.length} ${requests[requests.length - 1] ?? ""}`;
    const twin = text("test_twin_requests", "");
    return text("test_twin_differences", "") + (asked === twin ? "" : `${asked} | ${twin}\n`) +
      disagreement();
  }

  window.pageTest = {
    missing, requests, setClock, tick, dump, compare, call, text,
    waits: (timer) => (waiting.get(timer)?.due ?? time - 1) - time,
  };
}
