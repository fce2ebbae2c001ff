// The module for tests without a page: the same code as the page's, called from here.
import { readFileSync } from "node:fs";
import { kBuild } from "./browser";

type Functions = Record<string, (...numbers: number[]) => number>;

export interface TestModule {
  text(name: string, input: string, ...numbers: number[]): string;
}

export async function loadTestModule(): Promise<TestModule> {
  let memory: WebAssembly.Memory | undefined;
  const bytes = (at: number, size: number) =>
    new Uint8Array(memory?.buffer ?? new ArrayBuffer(0), at, size);
  const environ_sizes_get = (count: number, size: number): number => {
    for (const at of [count, size]) bytes(at, 4).fill(0);
    return 0;
  };
  const absent = (known: Functions) =>
    new Proxy<Functions>(known, { get: (own, name) => own[String(name)] ?? (() => 8) });
  const { instance } = await WebAssembly.instantiate(readFileSync(`${kBuild}/bin/page_test.wasm`), {
    machine: absent({}), wasi_snapshot_preview1: absent({ environ_sizes_get }),
  });
  const exports = instance.exports as unknown as Functions;
  memory = instance.exports["memory"] as WebAssembly.Memory;
  exports["_initialize"]?.();
  return {
    text: (name, input, ...numbers) => {
      const given = new TextEncoder().encode(input);
      const at = exports["input"]?.(given.length) ?? 0;
      bytes(at, given.length).set(given);
      const words = given.length > 0 ? [given.length, ...numbers] : numbers;
      const size = exports[name]?.(...words) ?? 0;
      return Buffer.from(bytes(exports["output"]?.() ?? 0, size)).toString("utf8");
    },
  };
}
