// What holds of all views: size, policy, what axe finds, widths, keys.
import assert from "node:assert/strict";
import { readFileSync, statSync } from "node:fs";
import { test } from "node:test";
import { kAxe, kPage, openPage, says, show } from "./browser.mjs";
import { browser, inChromium, kViews, walk } from "./walks.mjs";

test("the file is small, and names no address", () => {
  assert.ok(statSync(kPage).size <= 2.5e6, `${statSync(kPage).size} bytes`);
  const policy = /Content-Security-Policy" content="([^"]+)"/.exec(readFileSync(kPage, "utf8"))[1];
  assert.match(policy, /default-src 'none'/);
  assert.doesNotMatch(policy, /connect-src|https?:/);
});

for (const [lang, theme] of [["en", "light"], ["zh", "dark"]]) {
  test(`no view has a fault that axe finds, ${lang}, ${theme}`, async () => {
    const context = await browser.createBrowserContext();
    const page = await openPage(context, `lang=${lang}&theme=${theme}`);
    await page.evaluate(kAxe);
    for (const view of kViews) {
      await show(page, `view=${view}&lang=${lang}&theme=${theme}`);
      const faults = await page.evaluate(async () => (await window.axe.run(document, { iframes: false })).violations.map((each) => `${each.id}: ${each.nodes.map((node) => node.html).slice(0, 3).join(" ")}`));
      assert.deepEqual(faults, [], view);
    }
    await context.close();
  });
}

for (const width of [390, 1920]) {
  walk(`at ${width} px nothing is wider than the window`, "lang=zh", async (page) => {
    for (const view of kViews) {
      await show(page, `view=${view}&lang=zh`);
      assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= innerWidth), view);
    }
  }, [width, 844]);
}

// What has the focus, and whether its user sees that.
const focused = (page) => page.evaluate(() => {
  const at = document.activeElement;
  if (!at || at === document.body) return null;
  const { left, top, right, bottom, width, height } = at.getBoundingClientRect();
  const isSeen = Math.min(width, height) > 2 && right > 0 && bottom > 0 && left < innerWidth && top < innerHeight;
  const name = at.getAttribute("aria-label") ?? at.labels?.[0]?.textContent ?? at.textContent;
  return `${at.tagName} ${name.trim().slice(0, 40)}${isSeen && getComputedStyle(at).outlineStyle !== "none" ? "" : " (unseen)"}`;
});

// Those of the tab key, until it leaves the page or comes round.
async function stops(page) {
  await page.focus(".ways button");
  const list = [];
  for (let at = await focused(page); at !== null && at !== list[0]; at = await focused(page)) {
    list.push(at);
    await page.keyboard.press("Tab");
  }
  return list;
}

// So many of the way back, from where that has led; the page itself may be one between the last and the first.
async function stopsBack(page, count) {
  const list = [];
  await page.keyboard.down("Shift");
  for (let i = 0; i <= count && list.length < count; ++i) {
    await page.keyboard.press("Tab");
    const at = await focused(page);
    if (at !== null) list.unshift(at);
  }
  await page.keyboard.up("Shift");
  return list;
}

inChromium(walk)("by keys alone: the focus is seen at every stop, both ways, and a group is one", "lang=en", async (page) => {
  for (const view of kViews) {
    await show(page, `view=${view}&lang=en`);
    const list = await stops(page);
    assert.deepEqual(list.filter((each) => each.includes("(unseen)")), [], view);
    assert.deepEqual(await stopsBack(page, list.length), list, view);
    assert.equal(list.filter((each) => each.startsWith("A ")).length, view === "sections" ? 2 : 1, view); // views, tables
  }
});

walk("a link that names no view, kind, style or figure shows no example in its place", "lang=en", async (page) => {
  for (const [hash, name] of [["view=conections", "conections"], ["view=constructor", "constructor"], ["view=connections&kind=bolts", "bolts"], ["view=own&style=hh", "hh"], ["view=code&ask=stel", "stel"]]) {
    await show(page, `${hash}&lang=en`);
    await says(page, ".fault", `there is no "${name}"`);
    assert.equal((await page.$$(".box, .picture, .big, .grid")).length, 0, hash);
  }
});
