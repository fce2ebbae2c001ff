// What runs in the page before its own script, where a test wants the machine in its hand: the clock
// stands still until it is set, timers tick on request, documents can be missing, nothing is opened.
// It also reaches the module's functions for tests.

interface Waiting {
  readonly run: (...words: unknown[]) => void;
  readonly words: readonly unknown[];
  readonly due: number;
}

export interface PageTest {
  readonly missing: Set<string>;
  readonly opened: string[]; // what the program asked for: "open LINK", "message TEXT"
  setClock(time: string): void; // local, "2012-07-28T14:48:46"
  tick(timer: string): boolean; // false: it is off
  waits(timer: string): number | undefined; // ms until its next tick
  dump(): Record<string, string>;
  disagreement(): string; // the first control that does not show what its record says
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
  const missing = new Set<string>(), opened: string[] = [];
  const waiting = new Map<number, Waiting>();
  let exports: Functions = {}, memory: WebAssembly.Memory | undefined;
  let time = 0, handles = 1_000_000;
  let clock = new Date(2012, 6, 28, 14, 48, 46).getTime();

  const RealDate = Date;
  window.Date = new Proxy(RealDate, {
    construct: (target, words) => Reflect.construct(target, words.length > 0 ? words : [clock]),
  });
  performance.now = () => time;
  window.open = (target) => {
    opened.push(`open ${String(target)}`);
    return null;
  };
  const showModal = HTMLDialogElement.prototype.showModal;
  HTMLDialogElement.prototype.showModal = function show(): void {
    opened.push(`message ${this.querySelector("p")?.textContent ?? ""}`);
    showModal.call(this);
  };

  // The program's own timers are those that bear its names.
  const setTimer = window.setTimeout.bind(window), clearTimer = window.clearTimeout.bind(window);
  window.setTimeout = ((run: Waiting["run"], wait?: number, ...words: unknown[]) => {
    if (typeof words[0] !== "string") return setTimer(run, wait, ...words);
    waiting.set(++handles, { run, words, due: time + (wait ?? 0) });
    return handles;
  }) as typeof window.setTimeout;
  window.clearTimeout = (handle) => {
    if (!waiting.delete(Number(handle))) clearTimer(handle);
  };
  const waitingOf = (timer: string) => [...waiting].find(([, each]) => each.words[0] === timer);

  const bytes = (at: number, size: number) => new Uint8Array(memory?.buffer ?? new ArrayBuffer(0), at, size);
  const instantiate = WebAssembly.instantiate.bind(WebAssembly);
  WebAssembly.instantiate = (async (module: BufferSource, imports: WebAssembly.Imports) => {
    const machine = imports["machine"] as Functions;
    const read = machine["read_document"];
    const guarded = (at: number, size: number) =>
      missing.has(new TextDecoder().decode(bytes(at, size))) ? -1 : (read?.(at, size) ?? -1);
    // What tests link besides asks for the environment, which is empty.
    const environ_sizes_get = (count: number, size: number): number => {
      for (const at of [count, size]) bytes(at, 4).fill(0);
      return 0;
    };
    const streams = new Proxy<Functions>({ environ_sizes_get }, {
      get: (known, name) => known[String(name)] ?? (() => 8),
    });
    const loaded = await instantiate(module, {
      ...imports, wasi_snapshot_preview1: streams, machine: { ...machine, read_document: guarded },
    });
    exports = loaded.instance.exports as unknown as Functions;
    memory = loaded.instance.exports["memory"] as WebAssembly.Memory;
    return loaded;
  }) as typeof WebAssembly.instantiate;

  const call = (name: string, ...numbers: number[]): number => exports[name]?.(...numbers) ?? 0;
  const text = (name: string, input: string, ...numbers: number[]): string => {
    const given = new TextEncoder().encode(input);
    if (given.length > 0) bytes(call("input", given.length), given.length).set(given);
    const size = call(name, ...(given.length > 0 ? [given.length] : []), ...numbers);
    return new TextDecoder().decode(bytes(call("output"), size));
  };
  const dump = (): Record<string, string> => {
    const lines = text("test_dump", "").split("\n").filter((line) => line !== "");
    const values = Object.fromEntries(lines.map((line): [string, string] => {
      const at = line.indexOf("=");
      return [line.slice(0, at), line.slice(at + 1)];
    }));
    values["platform.calls"] = String(opened.length);
    values["platform.last"] = opened[opened.length - 1] ?? "";
    return values;
  };

  function disagreement(): string {
    const now = dump();
    if (now["window.running"] !== "1") return "";
    const plain = (value: string | undefined) =>
      (value ?? "").replace(/\\(.)/g, (_, letter: string) =>
        ({ n: "\n", r: "\r" })[letter] ?? letter);
    const element = (name: string) => document.getElementById(name);
    const names = new Set(Object.keys(now).filter((key) => /^(scl|txt|btn|Command|lbl|Label|mn)/
      .test(key)).map((key) => key.slice(0, key.lastIndexOf("."))));
    const asTold = (name: string): boolean => {
      const at = element(name);
      if (!at) return false;
      const record = (key: string) => now[`${name}.${key}`];
      const shown = !(name.startsWith("scl") ? at.parentElement : at)?.hidden;
      if (record("visible") !== undefined && shown !== (record("visible") === "1"))
        return name === "lblSat" && record("left") === "-" && !shown;
      if (at instanceof HTMLInputElement && at.type === "range")
        return at.value === record("value") && at.min === record("min") &&
          at.max === record("max");
      if (at instanceof HTMLInputElement) return at.value === plain(record("text"));
      if (record("checked") !== undefined)
        return (at.getAttribute("aria-checked") ?? "0") === (record("checked") === "1" ? "true"
          : at.hasAttribute("aria-checked") ? "false" : "0");
      if (record("caption") !== undefined)
        return at.textContent === plain(record("caption")) && at.title === plain(record("tooltip"));
      return true;
    };
    const wrong = [...names].find((name) => name !== "txtHelp" && !asTold(name));
    if (wrong) return wrong;
    for (const timer of ["tmrSat", "tmrES2", "tmrSunSynch", "tmrTime"])
      if ((now[`${timer}.enabled`] === "1") !== (waitingOf(timer) !== undefined)) return timer;
    const isOpen = (key: string) => Object.keys(now).some((each) => each.startsWith(key));
    if (isOpen("guide.") !== (element("frmUserGuide") !== null)) return "frmUserGuide";
    if (isOpen("about.") !== (element("frmAbout") !== null)) return "frmAbout";
    return "";
  }

  window.pageTest = {
    missing, opened, dump, disagreement, call, text,
    setClock: (words) => {
      const [year = 0, month = 1, ...rest] = words.split(/[-T:]/).map(Number);
      const set = new RealDate(year, month - 1, ...(rest as [number]));
      if (year < 100) set.setFullYear(year);
      clock = set.getTime();
    },
    waits: (timer) => {
      const found = waitingOf(timer);
      return found && found[1].due - time;
    },
    tick: (timer) => {
      const found = waitingOf(timer);
      if (!found) return false;
      const [handle, { run, words, due }] = found;
      waiting.delete(handle);
      time = Math.max(time, due);
      run(...words);
      return true;
    },
  };
}
