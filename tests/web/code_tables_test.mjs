// Walks through the tables of the code.
import assert from "node:assert/strict";
import { fill, says, show } from "./browser.mjs";
import { walk } from "./walks.mjs";

walk("code tables: the asked cell is marked", "view=code&lang=en", async (page) => {
  await says(page, ".big", "295");
  await says(page, ".marked", "295");
  await fill(page, "GRADE", "Q999");
  await says(page, ".fault", "Q999");
  await show(page, "view=code&lang=en&ask=phib");
  await says(page, ".warn", "for Q235");
  for (const ask of await page.$eval("form select", (list) => [...list.options].map((each) => each.value))) {
    if (ask === "slender") continue; // of 2003 alone
    await show(page, `view=code&lang=en&ask=${ask}`);
    assert.equal((await page.$$(".big")).length, 1, ask);
  }
});
