// Tells, over every view and in every tab, that the browser may lose the own store at its next start: a write or a read
// of it has failed, as on a full disk. Asks the browser meanwhile whether it can write again, and mends it then.
import { ask, lineOf, onTorn, renewStore, sentence } from "../../command/client";
import { button, download, el } from "../../parts/dom";
import { say } from "../../state/language";

const kNote = "orv3cal.torn";
const kAgain = 5000; // ms, until the browser is asked again

export const tornStore = el("p", { class: "fault torn", role: "alert", hidden: true });
let torn = false;
let timer = 0;

// Told when what is kept is safe again.
let mended: () => void = () => {};
export const onMended = (told: () => void) => void (mended = told);

// The note is for this browser's other tabs, and for this one when it is loaded again.
function note(is: boolean): void {
  torn = is;
  try {
    if (is) localStorage.setItem(kNote, "1");
    else localStorage.removeItem(kNote);
  } catch {
    // The page keeps nothing here.
  }
  drawTorn();
}

function noted(): boolean {
  try {
    return localStorage.getItem(kNote) !== null;
  } catch {
    return torn;
  }
}

async function exported(trouble: HTMLElement): Promise<void> {
  const answer = await ask(lineOf(["store", "export", "--to", "store.KDB"]));
  for (const bytes of Object.values(answer.files)) download("store.KDB", bytes);
  trouble.textContent = answer.status === 0 ? "" : ` ${sentence(answer)}`;
}

// In the page's language.
export function drawTorn(): void {
  tornStore.hidden = !torn;
  tornStore.replaceChildren();
  if (!torn) return;
  const trouble = el("span");
  tornStore.replaceChildren(
    say("浏览器未能写入或读出自己的库（磁盘可能已满），下次启动时可能丢失全部。请先导出；腾出空间后本页会自行修复，这一行随之消失，在此之前不要关闭浏览器。 ",
      "The browser could not write or read your own store (the disk may be full), and may lose all of it at its next start. Export it now; when there is room, the page mends this by itself and this line goes: do not close the browser before. "),
    button(".KDB", () => void exported(trouble), { "aria-label": say("导出 .KDB", "Export as .KDB") }), trouble);
}

async function mend(): Promise<void> {
  clearTimeout(timer);
  if (!(await renewStore())) return mendLater();
  note(false);
  mended();
}

function mendLater(): void {
  clearTimeout(timer);
  timer = setTimeout(() => void mend(), kAgain);
}

// Asks at once: the store was saved after all, or the page has been loaded again.
export function mendTorn(): void {
  if (torn) void mend();
}

onTorn(() => {
  if (torn) return;
  note(true);
  mendLater();
});
addEventListener("storage", ({ key }) => {
  if (key !== kNote) return;
  if (!noted()) return mendTorn(); // by the other: this tab may know a store that the browser has lost by then
  torn = true;
  drawTorn();
  mendLater(); // by this tab too: the other may be closed
});
torn = noted();
mendTorn();
