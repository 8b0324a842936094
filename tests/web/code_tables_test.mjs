// Walks through the tables of the code.
import assert from "node:assert/strict";
import { fill, says, show } from "./browser.mjs";
import { walk } from "./walks.mjs";

walk("code tables: the asked cell is marked", "view=code&lang=en", async (page) => {
  await says(page, ".big", "295");
  await says(page, ".marked", "295");
  await fill(page, "GRADE", "Q999");
  await says(page, ".box", "Q999");
  for (const [link, named] of [["ask=width-moments&args=web+Q345++50", "ALPHA0: is missing"], ["ask=steel&args=Q345%252020+20+f", '"Q345 20"']]) {
    await show(page, `view=code&lang=en&${link}`);
    await says(page, ".box", named);
    await page.click("::-p-text(Go to the field)");
    assert.ok(await page.evaluate(() => document.activeElement.ariaInvalid === "true"), named);
  }
  await show(page, "view=code&lang=en&ask=phib");
  await says(page, ".warn", "for Q235");
  for (const ask of await page.$eval("form select", (list) => [...list.options].map((each) => each.value))) {
    if (ask === "slender") continue; // of 2003 alone
    await show(page, `view=code&lang=en&ask=${ask}`);
    assert.equal((await page.$$(".big")).length, 1, ask);
  }
});
