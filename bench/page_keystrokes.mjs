// How long an own section takes to follow a keystroke, in ms: from the event until its properties and its
// picture, the exact figures with them, stand in the page, and until that is painted.
//
//   node bench/page_keystrokes.mjs [REPEATS]     after scripts/page
import { openPage, show, start } from "../tests/web/browser.mjs";

const repeats = Number(process.argv[2] ?? 10);
const browser = await start();
const page = await openPage(browser, "view=own&lang=en");
await new Promise((done) => setTimeout(done, 5000)); // until the page has run its first line some times
const styles = JSON.parse(await page.evaluate(async () => (await window.orv3cal.run(["styles", "--json"])).out));

// Each keystroke sets a digit behind the point of the last size, or takes it away.
const keystroke = () => page.evaluate(async () => {
  const view = document.querySelector(".detail");
  const input = [...document.querySelectorAll(".form .control input")].at(-3);
  const before = view.firstElementChild;
  const from = performance.now();
  input.value = input.value.includes(".") ? input.value.split(".")[0] : `${input.value}.5`;
  input.dispatchEvent(new Event("input"));
  await new Promise((done) => new MutationObserver(done).observe(view, { childList: true }));
  if (view.firstElementChild === before || !view.querySelector("article .picture")) throw new Error(view.textContent);
  const there = performance.now() - from;
  await new Promise((done) => requestAnimationFrame(() => setTimeout(done)));
  return [there, performance.now() - from];
});

const least = (times) => `${times[0].toFixed(0).padStart(6)} ${times[times.length >> 1].toFixed(0).padStart(6)}`;
console.log("                 in the page     painted         (least, median)");
for (const { alias } of styles) {
  await show(page, `view=own&lang=en&style=${alias}`);
  const times = [];
  for (let i = 0; i < repeats + 2; ++i) {
    times.push(await keystroke());
    await new Promise((done) => setTimeout(done, 100)); // as a quick typist
  }
  console.log(`${alias.padEnd(14)} ${[0, 1].map((k) => least(times.slice(2).map((each) => each[k]).sort((a, b) => a - b))).join("  ")}`);
}
await browser.close();
