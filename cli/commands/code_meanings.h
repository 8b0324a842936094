// What the numbers of a section kind or a row of a table stand for, for the help and for refusals.
#pragma once

#include "framework/language.h"

namespace orv3::cli {

// The numbers of the section kinds run through the pictures of the table, row by row.
inline constexpr CTextLiteral kGammaKinds = {
    "0 至 4 工字形和 H 形（第 1 项：1.05、1.2）；5 至 10 箱形及同样受弯的截面（第 2 "
    "项：1.05、1.05）；"
    "11、12 T 形（第 3 项：x 翼缘处 1.05、腹板边缘处 1.2，y 1.2）；13、14 同上而 y 为 1.05（第 4 "
    "项）；15 至 17 实心截面（第 5 项：1.2、1.2）；18 圆管（第 6 项：1.15）；19、20 格构式，x "
    "为虚轴"
    "（第 7 项：1.0、1.05）；21、22 两轴均为虚轴的格构式（第 8 项：1.0、1.0）",
    "0 to 4 I and H sections (item 1 of the table: 1.05 and 1.2), 5 to 10 boxes and what is bent "
    "as "
    "they are (item 2: 1.05 and 1.05), 11 and 12 T sections (item 3: x 1.05 at the flange, 1.2 at "
    "the tip of the web; y 1.2), 13 and 14 the same with y 1.05 (item 4), 15 to 17 solid bars "
    "(item "
    "5: 1.2 and 1.2), 18 the circular tube (item 6: 1.15), 19 and 20 lattices, x the axis that "
    "cuts "
    "no limb (item 7: 1.0 and 1.05), 21 and 22 lattices whose axes both cut no limb (item 8: 1.0 "
    "and 1.0)"};
inline constexpr CTextLiteral kClassKinds = {
    "1 轧制圆管（a 类）；2 宽高比不大于 0.8 的轧制工字形（x a、y b）；3 至 25 表中对两轴均为 b "
    "类的截面（其他轧制工字形和 H 形、焰切边焊接工字形、轧制槽钢、角钢和 T 形、焊接圆管、板件宽厚比"
    "大于 20 的箱形、格构式）；26 至 28 翼缘为轧制或剪切边的焊接工字形和 T 形（x b、y c）；29、30 "
    "板件边缘为轧制或剪切的焊接截面和宽厚比不大于 20 的箱形（c）",
    "1 the rolled tube (class a), 2 the rolled I of width over height up to 0.8 (x a, y b), 3 to "
    "25 "
    "what the table has as b about both axes (other rolled I and H, flame-cut welded I, rolled "
    "channels, angles and tees, welded tubes, boxes of width over thickness above 20, lattices), "
    "26 "
    "to 28 welded I and tees whose flanges are rolled or sheared (x b, y c), 29 and 30 welded "
    "sections of rolled or sheared plates and boxes of width over thickness up to 20 (c)"};
// The same with the names that both editions take.
inline constexpr CTextLiteral kClassMeanings = {
    "KIND：rolled-tube 轧制圆管，welded-tube 焊接圆管，rolled-i-narrow 宽高比不大于 0.8 "
    "的轧制工字形，rolled-i-wide 大于 0.8 的，welded-i-flame-cut 翼缘为焰切边的焊接工字形，"
    "welded-i-rolled 翼缘为轧制或剪切边的，rolled-t、welded-t-flame-cut、welded-t-rolled T 形，"
    "rolled-channel 槽钢，rolled-equal-angle 等边角钢，rolled-unequal-angle 不等边角钢，welded-box "
    "板件宽厚比大于 20 的焊接箱形，welded-box-thick 不大于 20 的，rolled-box 轧制箱形，solid "
    "实心截面，lattice 格构式；2003 版也可给表中图的编号：1 轧制圆管（a），2 宽高比不大于 0.8 "
    "的轧制工字形（x a、y b），3 至 25 对两轴均为 b 类，26 至 28 翼缘为轧制或剪切边的焊接工字形和 "
    "T "
    "形（x b、y c），29、30 板件边缘为轧制或剪切的焊接截面和宽厚比不大于 20 的箱形（c）",
    "KIND: rolled-tube, welded-tube, rolled-i-narrow (width over height up to 0.8), rolled-i-wide, "
    "welded-i-flame-cut, welded-i-rolled (flanges rolled or sheared), rolled-t, "
    "welded-t-flame-cut, welded-t-rolled, rolled-channel, rolled-equal-angle, "
    "rolled-unequal-angle, welded-box (width over thickness above 20), welded-box-thick (up to "
    "20), rolled-box, solid, lattice; in 2003 also a picture of the table by its number: 1 the "
    "rolled tube (a), 2 the rolled I of width over height up to 0.8 (x a, y b), 3 to 25 b about "
    "both axes, 26 to 28 welded I and tees whose flanges are rolled or sheared (x b, y c), 29 and "
    "30 welded sections of rolled or sheared plates and boxes of width over thickness up to 20 "
    "(c)"};
inline constexpr CTextLiteral kThickRows = {
    "1 轧制工字形或 H 形，t 小于 80 mm；2 同上，80 mm 及以上；3 焊接工字形，翼缘为焰切边；4 "
    "焊接工字形，翼缘为轧制或剪切边；5 焊接箱形，板件宽厚比大于 20；6 同上，不大于 20",
    "1 rolled I or H, t below 80 mm; 2 the same, 80 mm and more; 3 welded I, flanges flame-cut; 4 "
    "welded I, flanges rolled or sheared; 5 welded box, width over thickness above 20; 6 the same, "
    "up to 20"};

// Plates of Table 3.5.1, in the order of CClassElement.
inline constexpr const char* kClassElements[] = {"flange",     "web",      "web-compressed",
                                                 "box-flange", "box-wall", "tube"};
inline constexpr CTextLiteral kWidthMeanings = {
    "ELEMENT：flange 翼缘自由外伸 b/t，web 工字形腹板 h0/tw，box-wall 箱形壁板 b0/t，t-web-rolled "
    "与 "
    "t-web-welded T 形截面腹板，angle-leg 角钢肢（2017 版 w = b − 2t），tube 圆管 D/t；ALPHA0 = "
    "(σmax − "
    "σmin)/σmax，0 至 2",
    "ELEMENT: flange (outstand b/t), web (h0/tw of an I), box-wall (b0/t), t-web-rolled and "
    "t-web-welded (webs of T), angle-leg (w/t, w = b − 2t in 2017), tube (D/t); ALPHA0 = (σmax − "
    "σmin)/σmax, 0 to 2"};
// Plates of 7.3.1 and 8.4.1 (2003: 5.4), in the order of CWidthElement.
inline constexpr const char* kWidthElements[] = {
    "flange", "web", "box-wall", "t-web-rolled", "t-web-welded", "angle-leg", "tube"};

}  // namespace orv3::cli
