// Small helpers for making and writing elements. What stands already is not written again.
import type { Colour, Place } from "./tables";

type Properties = Partial<{
  id: string;
  className: string;
  textContent: string;
  tabIndex: number;
  title: string;
}>;

export function make<Tag extends keyof HTMLElementTagNameMap>(
  tag: Tag,
  properties: Properties = {},
  attributes: Readonly<Record<string, string>> = {},
): HTMLElementTagNameMap[Tag] {
  const element = document.createElement(tag);
  Object.assign(element, properties);
  for (const [name, value] of Object.entries(attributes)) setAttribute(element, name, value);
  return element;
}

// An empty value leaves the attribute out.
export function setAttribute(element: Element, name: string, value: string): void {
  if (value === "") element.removeAttribute(name);
  else if (element.getAttribute(name) !== value) element.setAttribute(name, value);
}

export function setVisible(element: HTMLElement, visible: boolean): void {
  if (element.hidden === visible) element.hidden = !visible;
}

export function setPlace(element: HTMLElement, [left, top, width, height]: Place): void {
  element.style.left = `${left}px`;
  element.style.top = `${top}px`;
  element.style.width = `${width}px`;
  element.style.height = `${height}px`;
}

export function cssOf([red, green, blue]: Colour): string {
  return `rgb(${red}, ${green}, ${blue})`;
}
