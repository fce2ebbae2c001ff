// Says in one sentence why the program is not there.
import { make } from "./elements";
import { OutOfMemory } from "./program";

export class NoWebAssembly extends Error {}

const kOld = "Selvane needs a browser with WebAssembly: please open this page in a newer one.";
const kFull = "Selvane has no memory left: please close other pages and load this one again.";
const kBroken = "Selvane has met a fault and has stopped: please load this page again.";

function sentenceOf(fault: unknown): string {
  if (fault instanceof NoWebAssembly) return kOld;
  // Browsers report memory that cannot be had as a RangeError.
  return fault instanceof OutOfMemory || fault instanceof RangeError ? kFull : kBroken;
}

export function showFault(fault: unknown): void {
  console.error(fault);
  const words = make("p", { id: "fault", textContent: sentenceOf(fault) }, { role: "alert" });
  document.getElementById("fault")?.remove();
  document.body.prepend(words);
  document.body.classList.add("stopped");
}
