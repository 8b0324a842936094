// Walks through lattice columns and the choice of a section.
import assert from "node:assert/strict";
import { fill, ready, says, show } from "./browser.mjs";
import { addressTells, otherLanguage, walk } from "./walks.mjs";

walk("lattice columns and choosing", "view=lattice&lang=en", async (page) => {
  await says(page, ".figures", "Limb 2");
  await page.select("select", "四肢格构柱");
  await says(page, ".figures", "Limb 4");
  await show(page, "view=choose&lang=en");
  await says(page, '[role="status"]', "sections tried");
  await page.click("::-p-text(Check)");
  await ready(page);
  await says(page, ".verdict", "passes");
});

walk("choosing among own sections: a style with a range, a fault at its size, and the section found as a member", `view=choose&lang=en&tables=-&styles=${encodeURIComponent('{"style": "box", "b": [200, 400, 50], "h": 400, "t": 16}')}`, async (page) => {
  const choose = '::-p-xpath(//button[. = "Choose"])';
  await says(page, '.answer [role="status"]', "5 sections tried");
  await page.type('input[aria-label="h from"]', "x");
  await page.click(choose);
  await says(page, ".formside .fault", "h is not possible");
  assert.equal(await page.$$eval('[aria-invalid="true"]', (all) => new Set(all.map((each) => each.ariaLabel.split(" ")[0])).size), 1);
  await page.focus('input[aria-label="h from"]');
  await page.keyboard.press("Backspace");
  await page.click("::-p-text(Add a style)");
  await page.click(choose);
  await says(page, '.answer [role="status"]', "6 sections tried");
  await page.click('.answer ::-p-xpath(//button[. = "Check"])');
  await ready(page);
  await addressTells(page, "case", '"sizes":[');
  await says(page, ".verdict", "passes");
});

walk("a question that was changed, or a link that is damaged, is not answered by another language", "view=choose&lang=en&tables=-&styles=[{", async (page) => {
  await says(page, ".fault", "damaged");
  await says(page, ".box", "No answer");
  await show(page, "view=choose&lang=en&tables=热轧普通工字钢,没有的表");
  await says(page, ".box", "没有的表");
  await show(page, "view=choose&lang=en&tables=热轧普通工字钢");
  await says(page, '.answer [role="status"]', "34 sections tried");
  await fill(page, "Rows at most", "");
  await otherLanguage(page);
  await says(page, ".box", "没有结果");
  await page.click('::-p-xpath(//button[. = "选择"])');
  await says(page, ".box", "最多行数");
  assert.deepEqual(await page.$$eval('[aria-invalid="true"]', (all) => all.map((each) => each.labels[0].textContent)), ["最多行数"]);
});
