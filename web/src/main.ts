// The page: its head, and the view that the address names.
import { onBusy, onOtherSave, onSave, run, stop } from "./command/client";
import { readLists } from "./form/guide";
import { button, el, fault, noSuch } from "./parts/dom";
import { keepFocus, oneStop, waysIn } from "./parts/keyboard";
import { askAgain } from "./parts/question";
import { change, go, startView, state } from "./state/address";
import { language, say } from "./state/language";
import { connections, latticeColumns, members } from "./views/checks/checks";
import { choose } from "./views/choose/choose";
import { codeTables } from "./views/code_tables";
import { ownSections } from "./views/own/own_sections";
import { sections } from "./views/sections/sections";
import { lostStore, noteSave } from "./views/store/lost_store";
import { storeView } from "./views/store/store_view";
import { drawTorn, mendTorn, onMended, tornStore } from "./views/store/torn_store";

declare global {
  interface Window {
    orv3cal: { run: typeof run };
  }
}
window.orv3cal = { run };

type View = [zh: string, en: string, show: (place: HTMLElement) => Promise<void>];
const kViews = new Map<string, View>(Object.entries({
  sections: ["截面", "Sections", sections],
  own: ["自定义截面", "Own section", ownSections],
  lattice: ["格构柱", "Lattice columns", latticeColumns],
  connections: ["连接", "Connections", connections],
  members: ["构件", "Members", members],
  choose: ["选择", "Choose", choose],
  code: ["规范表", "Code tables", codeTables],
  store: ["自己的库", "Own store", storeView],
}));

const unknown = (view: string): View =>
  ["没有此页面", "No such view", async (place) => place.replaceChildren(noSuch("view", view, [...kViews.keys()]))];

function dark(): boolean {
  return (state()["theme"] ?? (matchMedia("(prefers-color-scheme: dark)").matches ? "dark" : "light")) === "dark";
}

function head(view: string): HTMLElement {
  const links = [...kViews].map(([key, [zh, en]]) =>
    el("a", { href: `#view=${key}`, "aria-current": key === view ? "page" : null, onclick: (event: MouseEvent) => {
      event.preventDefault();
      go({ view: key });
    } }, say(zh, en)));
  const other = language() === "zh" ? "en" : "zh";
  return el("header", {}, el("span", { class: "ways" }), el("span", { class: "brand" }, "Orv3Cal"),
    oneStop(el("nav", { "aria-label": say("页面", "Views") }, ...links)),
    oneStop(el("span", { class: "switches" },
      button(other === "zh" ? "中文" : "English", () => { change({ lang: other }); void drawInPlace(); }, { lang: other, "data-key": "language" }),
      theme)));
}

// Light or dark changes nothing of what is shown.
function paint(): void {
  document.documentElement.dataset["theme"] = dark() ? "dark" : "light";
  theme.textContent = dark() ? "☀" : "☾";
}

const theme = button("", () => { change({ theme: dark() ? "light" : "dark" }); paint(); }, { "data-key": "theme" });

const draw = () => keepFocus(drawView);

// What is scrolled stays where it was.
async function drawInPlace(): Promise<void> {
  const scrolled = () => [document.documentElement, ...document.querySelectorAll("main > *, main .grid")];
  const tops = scrolled().map((each) => each.scrollTop);
  await draw();
  scrolled().forEach((each, i) => (each.scrollTop = tops[i] ?? 0));
}

let draws = 0;
async function drawView(): Promise<void> {
  const mine = ++draws;
  startView();
  const view = state()["view"] ?? "sections";
  const [zh, en, show] = kViews.get(view) ?? unknown(view);
  document.documentElement.lang = language() === "zh" ? "zh-CN" : "en";
  paint();
  theme.setAttribute("aria-label", say("明暗", "light or dark"));
  document.title = `${say(zh, en)} – Orv3Cal`;
  const main = el("main", { class: view, "aria-busy": "true" }, el("p", { class: "note" }, say("载入中…", "Loading…")));
  document.getElementById("page")!.replaceChildren(head(view), tornStore, main);
  drawTorn();
  document.querySelector('nav a[aria-current="page"]')?.scrollIntoView({ inline: "center", block: "nearest" });
  try {
    await show(main);
  } catch (error) {
    if (mine === draws) main.replaceChildren(fault(error instanceof Error ? error.message : String(error)));
  }
  if (mine === draws) document.querySelector(".ways")!.replaceChildren(...waysIn(main));
  main.setAttribute("aria-busy", "false");
  const lost = await lostStore();
  if (lost && mine === draws) main.before(lost);
}

const busy = el("div", { class: "busy", role: "status" });
document.body.append(busy);
onBusy((isBusy) => busy.replaceChildren(...(isBusy ? [say("计算中… ", "Computing… "), button(say("停止", "Stop"), () => void stop())] : [])));

// The own store has changed, by this tab or another: its rows are read anew, and what a view asks is asked again.
function storeChanged(): void {
  if (document.querySelector("main")?.className === "sections") return void drawInPlace();
  void readLists();
  askAgain();
}
onSave((isKept) => {
  noteSave(isKept);
  mendTorn();
  storeChanged();
});
onOtherSave(storeChanged);
onMended(storeChanged);

// A file that falls beside its place does not take the page away.
for (const kind of ["dragover", "drop"]) addEventListener(kind, (event) => event.preventDefault());
addEventListener("popstate", () => void draw());
void draw();
