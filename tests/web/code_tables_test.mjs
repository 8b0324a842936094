// Walks through the tables of the code.
import { fill, says } from "./browser.mjs";
import { walk } from "./walks.mjs";

walk("code tables: the asked cell is marked", "view=code&lang=en", async (page) => {
  await says(page, ".big", "295");
  await says(page, ".marked", "295");
  await fill(page, "GRADE", "Q999");
  await says(page, ".fault", "Q999");
});
