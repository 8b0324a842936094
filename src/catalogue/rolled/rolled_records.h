// The records of the rolled-section data files (".kvb"), one type for each of the 27 styles.
//
// A data file is little-endian: 2 bytes, the record size as a signed 16-bit integer, then records
// back to back; bytes after the last whole record mean nothing. Every record begins with the model
// number, UTF-16 ended by a zero, then come the sizes that are whole numbers of millimetres, then,
// from a multiple of 8 on, doubles. docs/catalogue.md has the offsets.
//
// Fields are named for the columns of the style's table and have their units: mm for sizes, cm and
// its powers for properties, kg/m (G), m^2/m (Aw), kN (N, P). Records are plain memory: copying one
// copies every byte, the reserved ones too.
#pragma once

#include <cstddef>
#include <cstdint>

#include "framework/export.h"

namespace orv3 {

// A length of a compression member, m, and its design capacity, kN.
struct CLengthCapacity {
  double L, P;
};

// Of a pair of angles or channels at one gap: modulus and radius of gyration about the axis that
// runs through the gap, cm^3 and cm.
struct CGapModulus {
  double Wy, iy;
};

// Of two angles as a cross at one gap: moment of inertia and radius of gyration about X1.
struct CGapInertia {
  double Ix, ix;
};

// --- Shapes that two or three styles share -------------------------------------------------------

struct ORV3CAL_API CRolledH {
  char16_t xh[14];
  std::int16_t H, B;
  double tw, tf, r, A, G, Ix, Wx, ix, Iy, Wy, iy;
};

struct ORV3CAL_API CRolledI {
  char16_t xh[20];
  std::int16_t h, b, reserved[2];
  double tw, t, r, r1, A, G, Aw, Ix, Wx, Sx, ix, Iy, Wy, iy;
};

struct ORV3CAL_API CRolledChannel {
  char16_t xh[20];
  std::int16_t h, b, reserved[2];
  double tw, t, r, r1, A, G, Aw, Ix, Wx, Sx, ix, Iy, Wymax, Wymin, iy, Iy1, zo;
};

struct ORV3CAL_API CLippedZ {
  char16_t xh[20];
  std::int16_t h, b, a, reserved;
  double t, A, G, Aw, theta, Ix1, Wx1, ix1, Iy1, Wy1, iy1, Ix, Wxa, Wxb, ix, Iy, Wya, Wyb, iy;
  double Ix1y1, It, Iw, k, Ww1, Ww2;
};

struct ORV3CAL_API CAnglePair {
  char16_t xh[20];
  double A, G, Ix, Wxmax, Wxmin, ix;
  CGapModulus gap[10];  // 0, 4, 6, ... 20 mm
};

struct ORV3CAL_API CChannelPairBack {
  char16_t xh[20];
  double A, G, Ix, Wx, ix;
  CGapModulus gap[10];  // 0, 4, 6, ... 20 mm
};

struct ORV3CAL_API CChannelPairToe {
  char16_t xh[20];
  double A, G, Ix, Wx, ix, Iy, Wy, iy;
};

}  // namespace orv3

// --- The records, by style number ----------------------------------------------------------------

struct ORV3CAL_API dbangleiron {  // 0
  char16_t xh[20];
  std::int16_t b, t, reserved[2];
  double r, A, G, Aw, Ix, Wxmax, Wxmin, ix, Ixo, Wxo, ixo, Ix1, Iyo, Wyomax, Wyomin, iyo, zo, N;
  orv3::CLengthCapacity P[18];  // 0.6, 0.9, ... 5.7 m
};

struct ORV3CAL_API bdbangleiron {  // 1
  char16_t xh[20];
  std::int16_t B, b, t, reserved;
  double r, A, G, Aw, Ix, Wxmax, Wxmin, ix, Ix1, yo, Iy, Wymax, Wymin, iy, Iy1, xo, Iu, Wu, iu, tga;
};

struct ORV3CAL_API kyyHiron : orv3::CRolledH {};  // 2

struct ORV3CAL_API PthjHiron {  // 3
  char16_t xh[15];
  std::int16_t H, h, B, tw, tf;
  double A, G, Ix, Wx, Sx, ix, Iy, Wy, iy, hf;
};

struct ORV3CAL_API Ptcgiron : orv3::CRolledChannel {};  // 4
struct ORV3CAL_API Ptgzgiron : orv3::CRolledI {};       // 5

struct ORV3CAL_API QxhjHiron {  // 6
  char16_t xh[20];
  std::int16_t H, h, B, reserved;
  double tw, tf, A, G, Ix, Wx, Sx, ix, Iy, Wy, iy, hf;
};

struct ORV3CAL_API ZyyHiron : orv3::CRolledH {};        // 7
struct ORV3CAL_API QxCgiron : orv3::CRolledChannel {};  // 8
struct ORV3CAL_API QxGzgiron : orv3::CRolledI {};       // 9

struct ORV3CAL_API LwbbDbiron {  // 10
  char16_t xh[20];
  std::int16_t b, reserved[3];
  double t, A, G, Aw, Ixo, Wxomax, Wxomin, ixo, Ix, ix, Iy, iy, Ix1, yo, eo, It, Uy;
};

struct ORV3CAL_API LwbbJbCgiron {  // 11
  char16_t xh[20];
  std::int16_t h, b, a, reserved;
  double t, A, G, Aw, Ix, Wx, ix, Iy, Wymax, Wymin, iy, Iy1, xo, eo, It, Iw, k, Ww1, Ww2;
};

struct ORV3CAL_API LwbbCgiron {  // 12
  char16_t xh[20];
  std::int16_t h, b, reserved[2];
  double t, A, G, Aw, Ix, Wx, ix, Iy, Wymax, Wymin, iy, Iy1, xo, eo, It, Iw, k, Ww1, Ww2, Uy;
};

struct ORV3CAL_API LwJbDbiron {  // 13
  char16_t xh[20];
  std::int16_t b, a, reserved[2];
  double t, A, G, Aw, Ixo, Wxomax, Wxomin, ixo, Ix, ix, Iy, iy, Ix1, yo, eo, It, Iw, Uy;
};

struct ORV3CAL_API LwJbZiron : orv3::CLippedZ {};   // 14
struct ORV3CAL_API LwXJbZiron : orv3::CLippedZ {};  // 15

struct ORV3CAL_API LwRectiron {  // 16
  char16_t xh[20];
  std::int16_t h, reserved[3];
  double t, A, G, Aw, Ix, Wx, ix;
};

struct ORV3CAL_API LwCircleiron {  // 17
  char16_t xh[20];
  std::int16_t d, reserved[3];
  double t, A, G, Aw, I, W, i;
};

struct ORV3CAL_API DbJgzhiron : orv3::CAnglePair {};     // 18
struct ORV3CAL_API BdbJgCbzhiron : orv3::CAnglePair {};  // 19
struct ORV3CAL_API BdbJgDbzhiron : orv3::CAnglePair {};  // 20

struct ORV3CAL_API DbJgSzzhiron {  // 21
  char16_t xh[20];
  double A, G;
  orv3::CGapInertia gap[5];  // 0, 4, 6, 8, 10 mm
  double Iy1, iy1;
};

struct ORV3CAL_API PtCgWxzhiron : orv3::CChannelPairBack {};  // 22
struct ORV3CAL_API PtCgNxzhiron : orv3::CChannelPairToe {};   // 23
struct ORV3CAL_API QxCgWxzhiron : orv3::CChannelPairBack {};  // 24
struct ORV3CAL_API QxCgNxzhiron : orv3::CChannelPairToe {};   // 25

struct ORV3CAL_API PftIron {  // 26
  char16_t xh[20];
  char16_t h[20];  // the height as text: half of an H section's need be no whole number
  double B, t1, t2, r, A, G, Ix, Wx, ix, Iy, Wy, iy, Cx;
};

// What a caller needs to know of a style's record to lay out its own memory.
struct ORV3CAL_API Ironcfg {
  std::int16_t size;     // bytes
  std::int16_t xhWidth;  // characters of the model number, its zero included
  std::int16_t whole;    // 16-bit sizes after it
  std::int16_t columns;  // of the style's table, the key column included
};

// --- Layout: size, the first field after the model number, a later one, the last -----------------

#define ORV3CAL_RECORD(type, size, whole, wholeAt, value, valueAt, last, lastAt)              \
  static_assert(sizeof(type) == (size) && offsetof(type, xh) == 0);                           \
  static_assert(offsetof(type, whole) == (wholeAt) && offsetof(type, value) == (valueAt) &&   \
                offsetof(type, last) == (lastAt) && (lastAt) + sizeof(type::last) == (size)); \
  static_assert(alignof(type) <= 8)

ORV3CAL_RECORD(dbangleiron, 480, b, 40, r, 48, P, 192);
ORV3CAL_RECORD(bdbangleiron, 208, B, 40, r, 48, tga, 200);
ORV3CAL_RECORD(kyyHiron, 120, H, 28, tw, 32, iy, 112);
ORV3CAL_RECORD(PthjHiron, 120, H, 30, A, 40, hf, 112);
ORV3CAL_RECORD(Ptcgiron, 184, h, 40, tw, 48, zo, 176);
ORV3CAL_RECORD(Ptgzgiron, 160, h, 40, tw, 48, iy, 152);
ORV3CAL_RECORD(QxhjHiron, 144, H, 40, tw, 48, hf, 136);
ORV3CAL_RECORD(ZyyHiron, 120, H, 28, tw, 32, iy, 112);
ORV3CAL_RECORD(QxCgiron, 184, h, 40, tw, 48, zo, 176);
ORV3CAL_RECORD(QxGzgiron, 160, h, 40, tw, 48, iy, 152);
ORV3CAL_RECORD(LwbbDbiron, 184, b, 40, t, 48, Uy, 176);
ORV3CAL_RECORD(LwbbJbCgiron, 200, h, 40, t, 48, Ww2, 192);
ORV3CAL_RECORD(LwbbCgiron, 208, h, 40, t, 48, Uy, 200);
ORV3CAL_RECORD(LwJbDbiron, 192, b, 40, t, 48, Uy, 184);
ORV3CAL_RECORD(LwJbZiron, 248, h, 40, t, 48, Ww2, 240);
ORV3CAL_RECORD(LwXJbZiron, 248, h, 40, t, 48, Ww2, 240);
ORV3CAL_RECORD(LwRectiron, 104, h, 40, t, 48, ix, 96);
ORV3CAL_RECORD(LwCircleiron, 104, d, 40, t, 48, i, 96);
ORV3CAL_RECORD(DbJgzhiron, 248, A, 40, ix, 80, gap, 88);
ORV3CAL_RECORD(BdbJgCbzhiron, 248, A, 40, ix, 80, gap, 88);
ORV3CAL_RECORD(BdbJgDbzhiron, 248, A, 40, ix, 80, gap, 88);
ORV3CAL_RECORD(DbJgSzzhiron, 152, A, 40, gap, 56, iy1, 144);
ORV3CAL_RECORD(PtCgWxzhiron, 240, A, 40, ix, 72, gap, 80);
ORV3CAL_RECORD(PtCgNxzhiron, 104, A, 40, ix, 72, iy, 96);
ORV3CAL_RECORD(QxCgWxzhiron, 240, A, 40, ix, 72, gap, 80);
ORV3CAL_RECORD(QxCgNxzhiron, 104, A, 40, ix, 72, iy, 96);
ORV3CAL_RECORD(PftIron, 184, h, 40, B, 80, Cx, 176);
#undef ORV3CAL_RECORD
