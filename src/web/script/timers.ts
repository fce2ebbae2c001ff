// A timer of the program as a timer of the page. A tick comes no sooner after the one before than the
// record says, and what a hidden page or a sleeping machine has missed is not caught up.
import type { Dispatcher } from "./dispatcher";
import type { TimerRecord, TimerRow } from "./tables";

export class Timer {
  private record: TimerRecord = { enabled: false, interval: 0 };
  private running: number | undefined; // the interval, ms
  private due = 0; // by performance.now()
  private handle = 0;

  // A timer that runs hidden goes on while nobody sees the page.
  constructor(
    private readonly row: TimerRow,
    private readonly index: number,
    private readonly dispatcher: Dispatcher,
  ) {
    document.addEventListener("visibilitychange", () => this.show(this.record));
  }

  show(record: TimerRecord): void {
    this.record = record;
    const mayRun = record.enabled && (!document.hidden || this.row.runsHidden);
    const interval = mayRun ? record.interval : undefined;
    if (this.running === interval) return;
    window.clearTimeout(this.handle);
    this.running = interval;
    if (interval === undefined) return;
    this.due = performance.now() + interval;
    this.wait();
  }

  stop(): void {
    this.show({ enabled: false, interval: 0 });
  }

  private wait(): void {
    const wait = Math.max(0, this.due - performance.now());
    this.handle = window.setTimeout(() => this.fire(), wait, this.row.name); // by which tests know it
  }

  // The tick may stop the timer or give it another interval, which starts it afresh.
  private fire(): void {
    const now = performance.now(), armed = this.handle;
    if (now >= this.due) {
      this.due = now + (this.running ?? 0);
      this.dispatcher.run((program) => program.run("tick", this.index));
    }
    if (this.handle === armed && this.running !== undefined) this.wait();
  }
}
