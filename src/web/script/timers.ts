// The timers of the program as timers of the page. A tick comes no sooner after the one before than
// the record says, and what a hidden page or a sleeping machine has missed is not caught up.
import type { Dispatcher } from "./dispatcher";
import type { ByName, TimerRecord, TimerRow } from "./tables";

interface Running {
  readonly interval: number; // ms
  due: number; // by performance.now()
  handle: number;
}

export class Timers {
  private readonly records = new Map<string, TimerRecord>();
  private readonly running = new Map<string, Running>();

  // A timer that runs hidden goes on while nobody sees the page.
  constructor(
    private readonly rows: readonly TimerRow[],
    private readonly dispatcher: Dispatcher,
  ) {
    document.addEventListener("visibilitychange", () => this.match());
  }

  show(records: ByName<TimerRecord>): void {
    for (const [name, record] of Object.entries(records)) this.records.set(name, record);
    this.match();
  }

  stopAll(): void {
    this.records.clear();
    for (const name of [...this.running.keys()]) this.stop(name);
  }

  private match(): void {
    for (const [name, record] of this.records) {
      const mayRun = record.enabled && (!document.hidden || this.rows.some((row) => row.name === name && row.runsHidden));
      const running = this.running.get(name);
      if (mayRun && running?.interval === record.interval) continue;
      this.stop(name);
      if (mayRun) this.start(name, record.interval);
    }
  }

  private start(name: string, interval: number): void {
    const running = { interval, due: performance.now() + interval, handle: 0 };
    this.running.set(name, running);
    this.arm(name, running);
  }

  private stop(name: string): void {
    const running = this.running.get(name);
    if (running) window.clearTimeout(running.handle);
    this.running.delete(name);
  }

  private arm(name: string, running: Running): void {
    const wait = Math.max(0, running.due - performance.now());
    const fire = (timer: string): void => this.fire(timer, running);
    running.handle = window.setTimeout(fire, wait, name);
  }

  private fire(name: string, running: Running): void {
    const now = performance.now();
    if (now >= running.due) {
      running.due = now + running.interval;
      this.dispatcher.tick(this.rows.findIndex((row) => row.name === name));
    }
    // The tick may have stopped the timer or given it another interval.
    if (this.running.get(name) === running) this.arm(name, running);
  }
}
