// What the numbers of a section kind or a row of a table stand for, for the help and for refusals.
#pragma once

namespace orv3::cli {

// The numbers of the section kinds run through the pictures of the table, row by row.
inline constexpr const char* kGammaKinds =
    "0 to 4 I and H sections (item 1 of the table: 1.05 and 1.2), 5 to 10 boxes and what is bent "
    "as "
    "they are (item 2: 1.05 and 1.05), 11 and 12 T sections (item 3: x 1.05 at the flange, 1.2 at "
    "the tip of the web; y 1.2), 13 and 14 the same with y 1.05 (item 4), 15 to 17 solid bars "
    "(item "
    "5: 1.2 and 1.2), 18 the circular tube (item 6: 1.15), 19 and 20 lattices, x the axis that "
    "cuts "
    "no limb (item 7: 1.0 and 1.05), 21 and 22 lattices whose axes both cut no limb (item 8: 1.0 "
    "and 1.0)";
inline constexpr const char* kClassKinds =
    "1 the rolled tube (class a), 2 the rolled I of width over height up to 0.8 (x a, y b), 3 to "
    "25 "
    "what the table has as b about both axes (other rolled I and H, flame-cut welded I, rolled "
    "channels, angles and tees, welded tubes, boxes of width over thickness above 20, lattices), "
    "26 "
    "to 28 welded I and tees whose flanges are rolled or sheared (x b, y c), 29 and 30 welded "
    "sections of rolled or sheared plates and boxes of width over thickness up to 20 (c)";
// The same with the names that both editions take.
inline constexpr const char* kClassMeanings =
    "KIND: rolled-tube, welded-tube, rolled-i-narrow (width over height up to 0.8), rolled-i-wide, "
    "welded-i-flame-cut, welded-i-rolled (flanges rolled or sheared), rolled-t, "
    "welded-t-flame-cut, welded-t-rolled, rolled-channel, rolled-equal-angle, "
    "rolled-unequal-angle, welded-box (width over thickness above 20), welded-box-thick (up to "
    "20), rolled-box, solid, lattice; in 2003 also a picture of the table by its number: 1 the "
    "rolled tube (a), 2 the rolled I of width over height up to 0.8 (x a, y b), 3 to 25 b about "
    "both axes, 26 to 28 welded I and tees whose flanges are rolled or sheared (x b, y c), 29 and "
    "30 welded sections of rolled or sheared plates and boxes of width over thickness up to 20 (c)";
inline constexpr const char* kThickRows =
    "1 rolled I or H, t below 80 mm; 2 the same, 80 mm and more; 3 welded I, flanges flame-cut; 4 "
    "welded I, flanges rolled or sheared; 5 welded box, width over thickness above 20; 6 the same, "
    "up to 20";

// Plates of Table 3.5.1, in the order of CClassElement.
inline constexpr const char* kClassElements[] = {"flange",     "web",      "web-compressed",
                                                 "box-flange", "box-wall", "tube"};

}  // namespace orv3::cli
