// Dispatcher: the page's one entry for events. An event runs to its end before the next one comes
// in; one that arrives meanwhile waits. When all are done the page is made to show the records,
// once. The first fault ends everything.
import type { Program } from "./program";
import { kMain } from "./tables";
import type { Changes, WindowId } from "./tables";

type Event = (program: Program) => void;

export class Dispatcher {
  private readonly waiting: Event[] = [];
  private active: WindowId = kMain;
  private busy = false;
  private ended = false;

  constructor(
    private readonly program: Program,
    private readonly show: (changes: Changes) => void,
    private readonly fail: (fault: unknown) => void,
  ) {}

  get activeWindow(): WindowId {
    return this.active;
  }

  // An action of the user in one of the windows, which becomes the active one first.
  act(window: WindowId, event: Event): void {
    this.run((program) => {
      if (this.active !== window) program.run("activate", window);
      event(program);
    });
  }

  // What is no action in a window.
  run(event: Event): void {
    this.waiting.push(event);
    if (this.busy || this.ended) return;
    this.busy = true;
    try {
      // Showing the records can bring in further events, such as a focus that moves.
      while (this.waiting.length > 0) this.runWaiting();
    } catch (fault) {
      this.ended = true;
      this.fail(fault);
    }
    this.busy = false;
  }

  private runWaiting(): void {
    for (let event = this.waiting.shift(); event; event = this.waiting.shift()) event(this.program);
    const changes = this.program.changes();
    this.active = changes.windows?.[changes.windows.length - 1] ?? this.active;
    this.show(changes);
  }
}
