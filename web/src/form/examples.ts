// The examples that come with the command, with which forms begin.
import bolt from "../../../examples/bolt.json";
import butt from "../../../examples/butt.json";
import fillet from "../../../examples/fillet.json";
import lattice from "../../../examples/lattice-2.json";
import lattice3 from "../../../examples/lattice-3.json";
import lattice4 from "../../../examples/lattice-4.json";
import member from "../../../examples/member.json";
import weldGroup from "../../../examples/weld-group.json";
import type { Case } from "./case";
import type { Kind } from "./schema";

export const kExamples: Record<Kind, Case> = { bolt, butt, fillet, "weld-group": weldGroup, member, lattice };

// Lattice columns by their tables.
export const kLimbs: Record<string, Case> = { 双肢格构柱: lattice, 三肢格构柱: lattice3, 四肢格构柱: lattice4 };
