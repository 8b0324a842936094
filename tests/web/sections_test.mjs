// Walks through the tables and their rows.
import assert from "node:assert/strict";
import { fill, openPage, ready, says, textOf } from "./browser.mjs";
import { address, addressTells, hold, inChromium, letGo, run, walk } from "./walks.mjs";

walk("sections: search, range, sort, keys, turn, compare, and a link that opens the same", "view=sections&lang=en&table=热轧普通工字钢", async (page, context) => {
  await says(page, ".detail h2", "I10");
  await fill(page, "Search all columns", "I2");
  await says(page, '[role="status"]', "8 of 34");
  await page.select(".range select", "A(cm^2)");
  await page.type('.range input[aria-label="at least"]', "45");
  await says(page, '[role="status"]', "5 of 34");
  await page.type('.range input[aria-label="at least"]', ",5");
  await says(page, ".range .fault", '"45,5" is no number');
  for (let i = 0; i < 4; ++i) await page.keyboard.press("Backspace");
  await page.keyboard.type("４５");
  await says(page, '[role="status"]', "5 of 34");
  await page.click(".grid th:nth-child(9) button");
  await page.click(".grid th:nth-child(9) button");
  assert.equal(await page.$eval(".grid th:nth-child(9)", (cell) => cell.getAttribute("aria-sort")), "descending");
  assert.equal(await textOf(page, ".grid tbody tr td:nth-child(2)"), "I28b");
  await page.focus(".grid");
  await page.keyboard.press("ArrowDown");
  await page.keyboard.press("ArrowDown");
  await says(page, ".detail h2", "I28a");
  await page.select(".detail select", "90");
  await page.click(".grid tbody tr:nth-child(1) input");
  await says(page, ".compare thead", "I28b");
  await page.click(".grid tbody tr:nth-child(2) input");
  await says(page, ".compare thead", "I28a");
  await addressTells(page, "compare", "I28a");
  const again = await openPage(context, await address(page));
  await says(again, ".detail h2", "I28a");
  await says(again, ".compare thead", "I28b");
  assert.equal(await again.$eval(".detail select", (select) => select.value), "90");
  assert.deepEqual(again.faults, []);
});

walk("a comparison's link holds names with its own marks", "view=sections&lang=en&table=矩形截面", async (page, context) => {
  for (const no of ["a;b", "c|d%3B"]) await run(page, ["store", "add", "矩形截面", "--set", `No.=${no}`, "--set", "b(mm)=20", "--set", "h(mm)=300"]);
  await page.reload();
  await ready(page);
  for (const no of ["a;b", "c|d%3B"]) await page.click(`input[aria-label="compare ${no}"]`);
  await page.waitForFunction(() => document.querySelectorAll(".compare thead button").length === 2);
  await addressTells(page, "compare", "d");
  const again = await openPage(context, await page.evaluate(() => location.hash.slice(1)));
  await says(again, ".compare thead", "c|d%3B");
  await again.click('[aria-label="compare no longer c|d%3B"]');
  await again.waitForFunction(() => document.querySelectorAll(".compare thead button").length === 1);
  await says(again, ".compare thead", "a;b");
  assert.deepEqual(again.faults, []);
});

inChromium(walk)("the gap is followed by figures and comparison alike, and stays in its own entry of the history", "view=sections&lang=en&table=热轧等边角钢组合&no=2L100X10&gap=4", async (page) => {
  const typed = async (text) => {
    await (await page.waitForSelector('::-p-xpath(//label[contains(., "Gap")]/..//input)')).focus();
    await page.keyboard.type(text);
  };
  const exact = async (no) => String(JSON.parse((await run(page, ["show", "--json", "--gap=4", "热轧等边角钢组合", no])).out).exact.Iy);
  await says(page, ".detail h2", "2L100X10");
  await page.click('input[aria-label="compare 2L100X10"]');
  await says(page, ".compare thead", "2L100X10");
  assert.equal(await page.$eval('::-p-xpath(//*[@class="beside"]//tr[th = "Iy *"]/td[2])', (cell) => cell.title), await exact("2L100X10"));
  await hold(page);
  await page.click('input[aria-label="compare 2L100X8"]');
  await page.click('input[aria-label="compare 2L100X8"]');
  await page.click('input[aria-label="compare 2L100X10"]');
  await letGo(page);
  await run(page, ["tables"]); // all that was asked before is answered
  assert.equal(await page.$eval(".beside", (place) => place.textContent), "");
  await page.click('::-p-xpath(//nav//a[starts-with(., "热轧普通槽钢][组合")])');
  await typed("12");
  assert.ok(await page.$eval(".waiting", (place) => place.textContent.includes("槽钢"))); // the figures of no gap
  await page.goBack();
  await says(page, ".detail h2", "2L100X10");
  assert.match(await address(page), /gap=4/);
  assert.ok(await page.$$eval(".detail td", (cells, want) => cells.some((cell) => cell.title === want), await exact("2L100X10")));
});
