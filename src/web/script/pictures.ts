// A picture: the program's pixels on a canvas, one for each pixel of the screen, and in words for
// those who cannot see it.
import { cssOf, make, setPlace, setVisible } from "./elements";
import type { Program } from "./program";
import type { MarkerRecord, PictureRow } from "./tables";

export class Picture {
  readonly element: HTMLElement; // with what lies on the picture
  readonly canvas: HTMLCanvasElement;
  private readonly context: CanvasRenderingContext2D;

  constructor(private readonly row: PictureRow, private readonly index: number) {
    this.canvas = make("canvas", { id: row.name }, { role: "img" });
    const context = this.canvas.getContext("2d", { alpha: false });
    if (!context) throw new Error("no canvas");
    this.context = context;
    this.element = make("div", { className: "picture" });
    setPlace(this.element, row.place);
    this.element.append(this.canvas);
  }

  paint(program: Program): void {
    const scale = window.devicePixelRatio;
    const width = Math.round(this.row.place[2] * scale);
    const height = Math.round(this.row.place[3] * scale);
    if (this.canvas.width !== width || this.canvas.height !== height) {
      this.canvas.width = width;
      this.canvas.height = height;
    }
    const part = program.paint(this.index, scale);
    if (part) this.context.putImageData(part.image, part.left, part.top);
  }
}

// The satellite.
export class Marker {
  readonly element = make("div", { id: "lblSat" }, { role: "img" });

  show({ left = 0, top = 0, colour, visible }: MarkerRecord): void {
    const { style } = this.element;
    style.transform = `translate(${left}px, ${top}px)`;
    if (colour) style.background = cssOf(colour);
    setVisible(this.element, visible);
  }
}

// The masks of the words on the pictures, in the page's own font.
export class WordPainter {
  private readonly context = make("canvas").getContext("2d", { willReadFrequently: true });

  draw(text: string, scale: number): ImageData {
    const context = this.context;
    if (!context) throw new Error("no canvas");
    const font = `bold ${12 * scale}px "Selvane Text"`;
    context.font = font;
    const measured = context.measureText(text);
    const ascent = measured.fontBoundingBoxAscent, descent = measured.fontBoundingBoxDescent;
    const width = Math.max(1, Math.ceil(measured.width + 2 * scale));
    const height = Math.max(1, Math.ceil(ascent + descent));
    context.canvas.width = width; // clears it and sets everything back
    context.canvas.height = height;
    context.font = font;
    context.fillStyle = "white";
    context.fillText(text, 0, ascent);
    return context.getImageData(0, 0, width, height);
  }
}
