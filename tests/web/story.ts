// Stories of users as text: the actions of a script, with what is expected between them.
import { readFileSync } from "node:fs";

export type StoryLine =
  | { readonly number: number; readonly action: string }
  | { readonly number: number; readonly key: string; readonly value: string;
      readonly kind: "expect" | "near" | "drawn" };

export function readStory(file: string): StoryLine[] {
  const lines: StoryLine[] = [];
  readFileSync(file, "utf8").split("\n").forEach((line, at) => {
    if (line.trim() === "" || line.startsWith("#")) return;
    const parts = /^(expect|near|drawn) ([^=]*)=(.*)$/.exec(line);
    const [, kind, key = "", value = ""] = parts ?? [];
    if (parts) lines.push({ number: at + 1, kind: kind as "expect", key, value });
    else {
      const [, times = "1", action = line] = /^(\d+) \* (.*)$/.exec(line) ?? [];
      for (let each = 0; each < Number(times); ++each) lines.push({ number: at + 1, action });
    }
  });
  return lines;
}

export function holds(kind: "expect" | "near" | "drawn", value: string,
                      actual: string | undefined): boolean {
  if (actual === undefined) return false;
  if (kind === "expect") return actual === value;
  if (kind === "near") {
    const [number = NaN, within = NaN] = value.split(" ").map(Number);
    return Math.abs(Number(actual) - number) <= within;
  }
  const words = actual.split(" "), parts = value.split(" "); // a stroke, to two decimals
  return words.length === parts.length && words.every((word, at) => {
    const like = parts[at] ?? "";
    return word === like || Math.abs(Number(word) - Number(like)) <= 0.0101;
  });
}
