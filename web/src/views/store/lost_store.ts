// Tells that the browser has lost the own store. A disk that was full can cost a browser the whole of what a page
// keeps in its database, at the browser's next start and without a word; so the day of the last save is noted
// elsewhere.
import { wasStoreLost } from "../../command/client";
import { button, el } from "../../parts/dom";
import { say } from "../../state/language";

const kNote = "orv3cal.saved";

// Empty where there was no save, or the browser does not let the page keep anything.
function dayOfSave(): string {
  try {
    return localStorage.getItem(kNote) ?? "";
  } catch {
    return "";
  }
}

export function noteSave(isKept: boolean): void {
  try {
    if (isKept) localStorage.setItem(kNote, new Date().toISOString().slice(0, 10));
    else localStorage.removeItem(kNote);
  } catch {
    // The page keeps nothing here, or the disk is full: then what was noted before stays.
  }
}

// The sentence, until somebody has read it; null where nothing is lost.
export async function lostStore(): Promise<HTMLElement | null> {
  const day = dayOfSave();
  if (!day || !(await wasStoreLost())) return null;
  const words = say(`浏览器丢失了自己的库（最后保存于 ${day}，磁盘曾满时会如此）。请在“自己的库”中导入导出过的文件。`,
    `The browser has lost your own store (last saved ${day}; it happens after a full disk). Import what you have exported, in Own store.`);
  const read = button(say("知道了", "I see"), () => {
    noteSave(false);
    notice.remove();
  });
  const notice = el("p", { class: "fault lost", role: "alert" }, `${words} `, read);
  return notice;
}
