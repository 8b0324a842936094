/*
 * The flat C interface of Orv3Cal, for spreadsheets, scripts and programs of other compilers.
 *
 * Functions: undecorated names; __stdcall in the 32-bit Windows library, the system's C convention
 * elsewhere. Nothing is thrown. Sections, checks and figures of the code may be asked for on
 * several threads at once; the catalogue and the dialogs belong to one.
 *
 * Results: a negative result is a failure, and orv3_last_error on the same thread tells the reason.
 * Otherwise the result is what the function's comment says.
 *
 * Texts: UTF-16, ended by a zero. A function that gives a text takes `text` and `size`, the room
 * there in characters with the ending zero; it writes what fits and returns the length of the whole
 * text without the zero, so that a result of `size` or more says that the text was cut. With a null
 * `text` or a `size` of 0 only the length is told.
 *
 * Lists: one entry a line, lines separated by a line feed (10). Lists of values: lines "key=value".
 * Numbers in them have a decimal point and all their digits, whatever the locale.
 *
 * Units: mm, mm^2, mm^3, mm^4, mm^6; kN and kN mm; strengths and stresses in N/mm^2; degrees.
 */
#ifndef ORV3CAL_C_H
#define ORV3CAL_C_H

/* Raised whenever a function is added; functions never change or go. */
#define ORV3_INTERFACE_VERSION 4

#if defined(_WIN32)
#define ORV3_CALL __stdcall
#else
#define ORV3_CALL
#endif

#if defined(_WIN32) && defined(ORV3CAL_BUILD_DLL)
#define ORV3_API __declspec(dllexport)
#elif defined(_WIN32) && defined(ORV3CAL_USE_DLL)
#define ORV3_API __declspec(dllimport)
#elif defined(__GNUC__) && !defined(_WIN32)
#define ORV3_API __attribute__((visibility("default")))
#else
#define ORV3_API
#endif

#ifdef __cplusplus
typedef char16_t orv3_char;
extern "C" {
#else
typedef unsigned short orv3_char;
#endif

/* The interface version of the library that was loaded. */
ORV3_API int ORV3_CALL orv3_version(void);

/* Why the last failing call of this thread failed: one line that says what was wrong and what would
 * be right. */
ORV3_API int ORV3_CALL orv3_last_error(orv3_char* text, int size);

/* --- Sections from their sizes ------------------------------------------------------------------
 */

/* Positions in the result of orv3_section. The frame: x to the right, y upwards, origin at the
 * lower-left corner of the section's bounding box. Properties without an "o" are about the axes
 * through the base point, those with it about the centroidal axes; Wx1 top, Wx2 bottom, WyL left,
 * WyR right. First moments of flanged crosses, hexagons and triangles are 0; a section modulus
 * whose fibre distance is 0 is 1e100. */
enum {
  ORV3_XO, /* centroid from the lower-left corner */
  ORV3_YO,
  ORV3_A,
  ORV3_IXO,
  ORV3_IYO,
  ORV3_WXO1,
  ORV3_WXO2,
  ORV3_WYOL,
  ORV3_WYOR,
  ORV3_SXO,
  ORV3_SYO,
  ORV3_RXO, /* radii of gyration ixo, iyo */
  ORV3_RYO,
  ORV3_IX,
  ORV3_IY,
  ORV3_WX1,
  ORV3_WX2,
  ORV3_WYL,
  ORV3_WYR,
  ORV3_SX1,
  ORV3_SX2,
  ORV3_SYL,
  ORV3_SYR,
  ORV3_RX, /* radii of gyration ix, iy */
  ORV3_RY,
  ORV3_PROPERTIES /* how many there are */
};

/* The table names of the section styles 0 to 14, a list. */
ORV3_API int ORV3_CALL orv3_list_styles(orv3_char* text, int size);

/* The signs of a style's sizes in their order, a list. `style` is a table name, a style number as
 * text, or a short English name such as "h", in capitals or not. */
ORV3_API int ORV3_CALL orv3_list_sizes(const orv3_char* style, orv3_char* text, int size);

/* Computes a section of `count` sizes with its base point at (x, y), and writes the first `room`
 * properties; returns how many were written. Sizes that make no section are refused. */
ORV3_API int ORV3_CALL orv3_section(const orv3_char* style, const double* sizes, int count,
                                    double x, double y, double* properties, int room);

/* --- Catalogue ----------------------------------------------------------------------------------
 */

/* Names the folder that holds the section stores; 0. Refused without a readable system store. */
ORV3_API int ORV3_CALL orv3_open_data(const orv3_char* folder);

/* The system store's tables that a mask selects, in the mask's order, a list: 0x01000000 rolled and
 * 0x02000000 user-defined, with the family bits 0x001 I and H, 0x002 box, 0x004 T, 0x008 channel,
 * 0x010 Z, 0x020 round, 0x040 angle, 0x080 pairs of angles, 0x100 pairs of channels, 0x200 cross,
 * 0x400 solid, 0x800 lattice. 0x03000FFF is every table; any other name in the store is of no mask.
 */
ORV3_API int ORV3_CALL orv3_list_tables(int mask, orv3_char* text, int size);

/* A table's column signs, and the numbers ("No.") of its sections, as lists. */
ORV3_API int ORV3_CALL orv3_list_columns(const orv3_char* table, orv3_char* text, int size);
ORV3_API int ORV3_CALL orv3_list_numbers(const orv3_char* table, orv3_char* text, int size);

/* The cell of a section by its column sign, as text and as a number (then 0 is returned). */
ORV3_API int ORV3_CALL orv3_cell(const orv3_char* table, const orv3_char* number,
                                 const orv3_char* sign, orv3_char* text, int size);
ORV3_API int ORV3_CALL orv3_cell_value(const orv3_char* table, const orv3_char* number,
                                       const orv3_char* sign, double* value);

/* Positions in the result of orv3_geometry. What a row does not tell is 0. */
enum {
  ORV3_GEO_AREA,
  ORV3_GEO_WIDTH, /* of the enclosing rectangle */
  ORV3_GEO_HEIGHT,
  ORV3_GEO_XC, /* centroid from the rectangle's left and bottom edges */
  ORV3_GEO_YC,
  ORV3_GEO_IX,
  ORV3_GEO_IY,
  ORV3_GEO_SXO,
  ORV3_GEO_RX, /* radii of gyration */
  ORV3_GEO_RY,
  ORV3_GEO_WXO1, /* section moduli: top, bottom, left, right */
  ORV3_GEO_WXO2,
  ORV3_GEO_WYOL,
  ORV3_GEO_WYOR,
  ORV3_GEO_TMAX, /* plate thickness, greatest and least */
  ORV3_GEO_TMIN,
  ORV3_GEO_E0,   /* distance of the shear centre */
  ORV3_GEO_IW,   /* warping constant */
  ORV3_GEO_SYMX, /* 1 when symmetric about the horizontal axis */
  ORV3_GEO_SYMY, /* about the vertical axis */
  ORV3_GEOMETRY  /* how many there are */
};

/* The geometry of a catalogue section; writes the first `room` values and returns how many were
 * written. A quarter turn, counter-clockwise, turns width, height, xc, yc, Ix and Iy; everything
 * else is of the section as it stands in the catalogue. `turn` is any multiple of 90 (-90 is 270,
 * 450 is 90). The parts of a pair touch. A row whose figures contradict its sizes is refused. */
ORV3_API int ORV3_CALL orv3_geometry(const orv3_char* table, const orv3_char* number, double turn,
                                     double* values, int room);

/* The same of two angles, of a cross of angles, or of two channels back to back, whose parts stand
 * `spacing` apart: whole mm, 0 to 1000. */
ORV3_API int ORV3_CALL orv3_pair_geometry(const orv3_char* table, const orv3_char* number,
                                          double spacing, double turn, double* values, int room);

/* --- Exact properties ---------------------------------------------------------------------------
 */

/* Positions in the results of orv3_exact and its like: what follows from the outline alone, root
 * radii included. The frame: x to the right, y upwards, origin at the lower-left corner of the
 * section's bounding box. NaN where there is no answer: the parts of a pair and the limbs of a
 * lattice column are not joined, so that It is added up and Iw, shear centre, shear areas and
 * constants of monosymmetry are none. */
enum {
  ORV3_EXACT_A,
  ORV3_EXACT_XO, /* centroid */
  ORV3_EXACT_YO,
  ORV3_EXACT_IX, /* about the centroid's axes: mm^4 */
  ORV3_EXACT_IY,
  ORV3_EXACT_IXY,
  ORV3_EXACT_I1, /* principal, I1 >= I2 */
  ORV3_EXACT_I2,
  ORV3_EXACT_THETA, /* degrees from x to axis 1, in (-90, 90] */
  ORV3_EXACT_RX,    /* radii of gyration ix, iy, i1, i2 */
  ORV3_EXACT_RY,
  ORV3_EXACT_R1,
  ORV3_EXACT_R2,
  ORV3_EXACT_WX1, /* section moduli: top, bottom, left, right */
  ORV3_EXACT_WX2,
  ORV3_EXACT_WYL,
  ORV3_EXACT_WYR,
  ORV3_EXACT_WPX, /* plastic moduli */
  ORV3_EXACT_WPY,
  ORV3_EXACT_XP, /* plastic neutral axes */
  ORV3_EXACT_YP,
  ORV3_EXACT_IT, /* torsion constant */
  ORV3_EXACT_IW, /* warping constant about the shear centre */
  ORV3_EXACT_XS, /* shear centre */
  ORV3_EXACT_YS,
  ORV3_EXACT_ASX, /* shear areas for forces along x and y */
  ORV3_EXACT_ASY,
  ORV3_EXACT_BETAX, /* constants of monosymmetry, mm */
  ORV3_EXACT_BETAY,
  ORV3_EXACT_MASS,    /* kg/m at 7850 kg/m^3 */
  ORV3_EXACT_SURFACE, /* m^2/m of the outer outline */
  /* The solver's own estimates of its errors, and whether all are within their limits (It 0.1 %, Iw
   * and shear areas 0.3 %, shear centre 0.05 mm or 0.05 % of the depth): 1, else 0. */
  ORV3_EXACT_ERROR_IT,     /* relative */
  ORV3_EXACT_ERROR_IW,     /* relative */
  ORV3_EXACT_ERROR_AS,     /* relative, of both shear areas */
  ORV3_EXACT_ERROR_CENTRE, /* mm, of the shear centre; of betax and betay twice that */
  ORV3_EXACT_ACCURATE,
  ORV3_EXACT /* how many there are; values may be added before it */
};

/* Of a catalogue section, whose parts touch when it is a pair; writes the first `room` values and
 * returns how many were written. A section without an outline is refused, and so is a row whose
 * figures contradict its sizes. */
ORV3_API int ORV3_CALL orv3_exact(const orv3_char* table, const orv3_char* number, double* values,
                                  int room);

/* Of a section of `count` sizes, which are as for orv3_section. */
ORV3_API int ORV3_CALL orv3_section_exact(const orv3_char* style, const double* sizes, int count,
                                          double* values, int room);

/* Of any outline in mm: `loops` closed loops of counts[i] points each, one loop after the other, a
 * point three numbers: x, y and the bulge of the edge that starts there (the tangent of a quarter
 * of its arc's angle, positive when it turns to the left; 0 for a straight edge). A loop inside
 * another one is a hole, whichever way it runs. At most 100000 points. An outline that is open,
 * crosses or touches itself or encloses nothing is refused. */
ORV3_API int ORV3_CALL orv3_outline_exact(const double* points, const int* counts, int loops,
                                          double* values, int room);

/* --- Checks by GB 50017-2003 --------------------------------------------------------------------
 */

/* `input` is a list of values with the keys of the command line's case files (docs/connections.md);
 * a spacing may be several numbers separated by semicolons. The result is a list of values: the
 * verdict as "pass" (1 or 0) and "utilisation", the results of the record, and one line "warning"
 * for each warning (English). */
ORV3_API int ORV3_CALL orv3_check_bolt(const orv3_char* input, orv3_char* text, int size);
ORV3_API int ORV3_CALL orv3_check_fillet(const orv3_char* input, orv3_char* text, int size);
ORV3_API int ORV3_CALL orv3_check_butt(const orv3_char* input, orv3_char* text, int size);

/* --- Checks by either edition of GB 50017 -------------------------------------------------------
 */

/* `kind` is "bolt", "fillet", "butt" or "weld-group"; `code` is "2017" (in force) or "2003"
 * (withdrawn, for existing structures); null or empty takes the input's value "code", else 2017.
 * Input and result as above; the welds of a group as x1;y1;x2;y2;hf of each in turn. The result
 * begins with "code". */
ORV3_API int ORV3_CALL orv3_check(const orv3_char* kind, const orv3_char* code,
                                  const orv3_char* input, orv3_char* text, int size);

/* A member. Keys as in the command line's case files (docs/members.md), those of an inner object
 * behind a point ("section.table", "lengths.x"), two end moments as M1;M2; "sway", "dynamic" and
 * "restrained" are 1 or 0. A section of a table is looked up in the opened data. `code` as above.
 * Combinations of forces may follow, an empty line in front of each, with what is not the same for
 * all of them. The result: "code", "pass" (1 or 0), "ratio" and "governs" of the worst check, the
 * ratio of each check by its name, the results, and one line "warning" for each warning (English).
 * Of combinations each ratio is the greatest; its combination stands behind it, as in
 * "strength.case", that of the worst check as "case", by its "id" or its number. */
ORV3_API int ORV3_CALL orv3_check_member(const orv3_char* code, const orv3_char* input,
                                         orv3_char* text, int size);

/* The lightest rows of the opened data that pass: `tables` are "all", or names joined by
 * commas, among which sections of a style with ranges of sizes in mm may stand, "from:to:step" or
 * one number, as "h b=200:400:10 h=400 tf=20 tw=10";
 * `input` is a member without its section, or several with an empty line between each and the next,
 * all of which must pass, by one edition; "section.gap" is that of pairs. The result: "code", how
 * many rows were "tried", are "passing" and were "refused", for each of the first `top` (0: all)
 * that pass, lightest first, a line "row=table;number;kg/m;ratio;governing check;case", for each
 * thing that was assumed or is to be looked at one line "warning=table;first number;key;text", and
 * for each table with refused rows "refusal=table;how many;first number;reason". None that passes
 * is no failure; a failure when every row is refused. */
ORV3_API int ORV3_CALL orv3_choose(const orv3_char* tables, const orv3_char* code,
                                   const orv3_char* input, int top, orv3_char* text, int size);

/* --- Figures of GB 50017-2003, each of which returns 0 ------------------------------------------
 */

/* Strength of a steel ("Q235", "Q345", "Q390", "Q420") by plate thickness in mm; `kind` is "f",
 * "fv" or "fce". Table 3.4.1-1. */
ORV3_API int ORV3_CALL orv3_steel_strength(const orv3_char* steel, double thickness,
                                           const orv3_char* kind, double* value);
/* Strength of a weld; `kind` is "fcw", "ftw12", "ftw3", "fvw" or "ffw". Table 3.4.1-3. */
ORV3_API int ORV3_CALL orv3_weld_strength(const orv3_char* steel, double thickness,
                                          const orv3_char* kind, double* value);
/* Stability factor of an axially compressed member: slenderness, 0 to 1000; yield strength, 100 to
 * 1000 N/mm^2; buckling class "a", "b", "c" or "d". Appendix C. */
ORV3_API int ORV3_CALL orv3_phi(double slenderness, double yield, const orv3_char* buckling_class,
                                double* value);

/* --- Figures by edition, each of which returns 0
 * --------------------------------------------------
 *
 * `code` is "2017" or "2003". A steel, a thickness, a hole or a surface for which the edition has
 * no figure is refused by name. */

/* Strength of a steel: "Q235", "Q345", "Q390", "Q420", in 2017 also "Q355" (read as Q345), "Q460"
 * and "Q345GJ"; `product` is "plate" or "tube", `thickness` that of the plate or wall in mm; `kind`
 * is "f", "fv", "fce", in 2017 also "fy" or "fu". 2017: Tables 4.4.1 to 4.4.3. */
ORV3_API int ORV3_CALL orv3_code_steel(const orv3_char* code, const orv3_char* steel,
                                       const orv3_char* product, double thickness,
                                       const orv3_char* kind, double* value);
/* Strength of a weld; `kind` as for orv3_weld_strength; "ffw" is that of the lowest electrode of
 * the steel unless `electrode` ("E43", "E50", "E55", "E60") is given: null or empty otherwise.
 * 2017: Table 4.4.5. */
ORV3_API int ORV3_CALL orv3_code_weld(const orv3_char* code, const orv3_char* steel,
                                      double thickness, const orv3_char* kind,
                                      const orv3_char* electrode, double* value);
/* Strength of a bolt; `bolt` is "C", "AB" or "bearing", `grade` "4.6" to "10.9"; `kind` is "ft" or
 * "fv", or "fc" with the steel of the plate for `grade`. 2017: Table 4.4.6. */
ORV3_API int ORV3_CALL orv3_code_bolt(const orv3_char* code, const orv3_char* bolt,
                                      const orv3_char* grade, const orv3_char* kind, double* value);
/* Slip factor; `surface` counts the treatments of the edition's table from 0: 0 to 2 in 2017 (Table
 * 11.4.2-1), 0 to 4 in 2003. */
ORV3_API int ORV3_CALL orv3_code_slip(const orv3_char* code, int surface, const orv3_char* steel,
                                      double* value);
/* Factor k of slip resistance; `hole` is "standard", "oversize", "slot-across" or "slot-along" the
 * force. 2017: 11.4.2. */
ORV3_API int ORV3_CALL orv3_code_hole(const orv3_char* code, const orv3_char* hole, double* value);
/* Preload in kN of a bolt of "8.8" or "10.9" and a diameter in mm. 2017: Table 11.4.2-2. */
ORV3_API int ORV3_CALL orv3_code_preload(const orv3_char* code, const orv3_char* grade,
                                         double diameter, double* value);

/* --- Windows ------------------------------------------------------------------------------------
 */

/* Opens the section browser on the opened data with the tables of a mask. The chosen row as a list
 * of values: "table", then each column by its sign; an empty text when nothing was chosen. A `size`
 * of 4096 holds any row: a longer text is cut. A failure elsewhere than on Windows. */
ORV3_API int ORV3_CALL orv3_browse(int mask, orv3_char* text, int size);
/* The same with the editor of the user's own tables. */
ORV3_API int ORV3_CALL orv3_edit_user_tables(int mask, orv3_char* text, int size);

#ifdef __cplusplus
}
#endif

#endif
