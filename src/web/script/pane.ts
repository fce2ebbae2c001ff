// A pane with a document. The program makes the markup, in which nothing of a document's own is
// left as markup, and follows the links from one document to another.
import type { Dispatcher } from "./dispatcher";
import { make } from "./elements";
import type { WindowId } from "./tables";

export class Pane {
  readonly element: HTMLElement;

  constructor(id: string, window: WindowId, dispatcher: Dispatcher) {
    this.element = make("div", { id, className: "pane", tabIndex: 0 }, { role: "region" });
    this.element.addEventListener("click", (event) => {
      const link = (event.target as Element).closest<HTMLElement>("a[data-link]");
      if (!link) return; // a web link is the browser's
      event.preventDefault();
      const index = Number(link.dataset["link"]);
      dispatcher.act(window, (program) => program.run("follow", window, index));
    });
  }

  show(html: string): void {
    this.element.innerHTML = html;
    this.element.scrollTo(0, 0);
  }
}
