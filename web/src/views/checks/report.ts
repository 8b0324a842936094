// A calculation report, which is a page of the command's own, in a frame that runs no script.
import { button, download, el } from "../../parts/dom";
import { oneStop } from "../../parts/keyboard";
import { language, say } from "../../state/language";

const text = (bytes: Uint8Array) => new TextDecoder().decode(bytes);

export function reportView(bytes: Uint8Array, close: () => void): HTMLElement {
  const frame = el("iframe", { title: say("计算书", "Calculation report"), class: "report", sandbox: "allow-same-origin allow-modals" });
  frame.srcdoc = text(bytes);
  frame.onload = () => frame.style.setProperty("--whole", `${frame.contentDocument!.documentElement.scrollHeight}px`); // on paper
  return el("section", { class: "reportview" },
    el("h2", { tabindex: -1 }, say("计算书", "Report"), " ", button("×", close, { class: "quiet", "aria-label": say("关闭计算书", "Close the report") })),
    oneStop(el("div", { class: "tools" },
      button(say("打印（A4）", "Print (A4)"), () => frame.contentWindow?.print()),
      button("HTML", () => download("report.html", bytes)),
      el("span", { class: "note", lang: language() }, say("计算书由命令生成。", "The report is the command's own.")))),
    frame);
}

// The drawing in a report; none when it has none.
export function drawingIn(bytes: Uint8Array | undefined): string | undefined {
  if (!bytes) return undefined;
  const html = text(bytes);
  const from = html.indexOf("<svg");
  const to = html.indexOf("</svg>", from);
  return from < 0 || to < 0 ? undefined : html.slice(from, to + 6);
}
