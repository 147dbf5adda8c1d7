// The symbols of the code tables, each composed from the primitives of
// figure.h. Where the international symbols know two forms of one code, the
// form drawn here is the first, plain one (rain as round dots, the sand S with a
// single arrow), and "has decreased" marks the right side of a symbol with a bar,
// "has begun or increased" its left side.
#include "symbols/symbols.h"

#include <array>
#include <unordered_map>

namespace obsdesk {

namespace {

Primitive mk(Shape shape, float x, float y, float w = 1, float h = 0, int arg = 0) { return Primitive{shape, x, y, w, h, arg}; }
Primitive line(float x1, float y1, float x2, float y2) { return mk(Shape::Line, x1, y1, x2 - x1, y2 - y1); }
Primitive hbar(float x1, float x2, float y) { return line(x1, y, x2, y); }

void add(Figure& f, std::initializer_list<Primitive> marks) { f.insert(f.end(), marks); }

// Precipitation drops (dot, comma, asterisk) in the patterns that tell
// intermittent from continuous and slight from heavy:
// 0 one; 1 two side by side; 2 two above each other; 3 three in a triangle;
// 4 three above each other; 5 four in a diamond.
void drops(Figure& f, Shape drop, int pattern, float cx = 0, float cy = 0) {
  const float s = drop == Shape::Asterisk ? 0.9f : 0.85f;
  auto at = [&](float dx, float dy) { f.push_back(mk(drop, cx + dx, cy + dy, s)); };
  switch (pattern) {
    case 0: at(0, 0); break;
    case 1: at(-8, 0); at(8, 0); break;
    case 2: at(0, -8); at(0, 8); break;
    case 3: at(0, -8); at(-8, 7); at(8, 7); break;
    case 4: at(0, -16); at(0, 0); at(0, 16); break;
    default: at(0, -14); at(-9, 0); at(9, 0); at(0, 14); break;
  }
}

// Fog: three bars. Broken top bar: the sky is still discernible; all bars
// broken: fog in patches.
void fog(Figure& f, bool sky_visible, bool patches, float cx = 0, float half = 13) {
  for (float y : {-8.0f, 0.0f, 8.0f}) {
    if (patches || (sky_visible && y < 0)) {
      f.push_back(hbar(cx - half, cx - 3, y));
      f.push_back(hbar(cx + 3, cx + half, y));
    } else {
      f.push_back(hbar(cx - half, cx + half, y));
    }
  }
}

// The bar of change in the past hour: on the right "has decreased", on the left
// "has begun or increased", none for "no appreciable change".
enum Change { Decreased, Unchanged, Increased };
void change_bar(Figure& f, Change c, float half_width) {
  if (c == Decreased) f.push_back(line(half_width, -12, half_width, 12));
  if (c == Increased) f.push_back(line(-half_width, -12, -half_width, 12));
}

Figure ww_figure(int ww) {
  Figure f;
  auto past_hour = [&](std::initializer_list<Primitive> marks) {
    // The phenomenon on the left, the bracket of "in the past hour" after it.
    add(f, marks);
    f.push_back(mk(Shape::Bracket, 14, 0, 1, 13));
  };
  auto shower = [&](int bar, std::initializer_list<Primitive> above) {
    add(f, above);
    f.push_back(mk(Shape::InvTriangle, 0, 8, 1, 0, bar));
  };
  auto storm_after = [&](std::initializer_list<Primitive> now) {
    // Thunderstorm in the past hour, precipitation now.
    f.push_back(mk(Shape::Thunder, -14, 0, 0.9f));
    f.push_back(mk(Shape::Bracket, 2, 0, 1, 13));
    add(f, now);
  };
  switch (ww) {
    // 00-03: the development of the sky in the past hour.
    case 0: f.push_back(mk(Shape::Circle, 0, 0, 9, 0, -1)); break;
    case 1: add(f, {mk(Shape::Circle, 0, -3, 9, 0, -1), hbar(-9, 9, 11)}); break;
    case 2: add(f, {mk(Shape::Circle, 0, 0, 9, 0, -1), hbar(-15, 15, 0)}); break;
    case 3: add(f, {mk(Shape::Circle, 0, 3, 9, 0, -1), hbar(-9, 9, -11)}); break;
    // 04-09: haze, dust, sand and smoke.
    case 4: f.push_back(mk(Shape::Smoke, 0, 0)); break;
    case 5: f.push_back(mk(Shape::Infinity, 0, 0)); break;
    case 6: f.push_back(mk(Shape::SandS, 0, 0)); break;
    case 7: add(f, {mk(Shape::SandS, 0, 0), line(0, -14, 0, 14)}); break;
    case 8:
      add(f, {mk(Shape::Paren, -13, 0, 1, 12, -1), mk(Shape::SandS, 0, 0), line(0, -14, 0, 14),
              mk(Shape::Paren, 13, 0, 1, 12, 1)});
      break;
    case 9:
      add(f, {mk(Shape::Paren, -17, 0, 1, 13, -1), mk(Shape::SandS, 0, 0), mk(Shape::Arrow, -11, 0, 22),
              mk(Shape::Paren, 17, 0, 1, 13, 1)});
      break;
    // 10-12: mist and shallow fog.
    case 10: add(f, {hbar(-11, 11, -4), hbar(-11, 11, 4)}); break;
    case 11: add(f, {hbar(-16, -3, -4), hbar(3, 16, -4), hbar(-16, 16, 4)}); break;
    case 12: add(f, {hbar(-16, 16, -4), hbar(-16, 16, 4)}); break;
    case 13: f.push_back(mk(Shape::Lightning, 0, 0)); break;
    // 14-16: precipitation in sight.
    case 14: add(f, {mk(Shape::Dot, 0, -6), mk(Shape::Cup, 0, 2, 9, 9)}); break;
    case 15: add(f, {mk(Shape::Paren, -12, 0, 1, 11, 1), mk(Shape::Dot, 0, 0), mk(Shape::Paren, 12, 0, 1, 11, -1)}); break;
    case 16: add(f, {mk(Shape::Paren, -10, 0, 1, 11, -1), mk(Shape::Dot, 0, 0), mk(Shape::Paren, 10, 0, 1, 11, 1)}); break;
    case 17: f.push_back(mk(Shape::Thunder, 0, 0)); break;
    case 18:
      // Squall: a wedge with its shoulders drawn out.
      add(f, {line(-14, -9, -8, -9), line(-8, -9, 0, 10), line(0, 10, 8, -9), line(8, -9, 14, -9)});
      break;
    case 19: f.push_back(mk(Shape::Funnel, 0, 0)); break;
    // 20-29: in the past hour, not now.
    case 20: past_hour({mk(Shape::Comma, -4, -3)}); break;
    case 21: past_hour({mk(Shape::Dot, -4, 0)}); break;
    case 22: past_hour({mk(Shape::Asterisk, -4, 0)}); break;
    case 23: past_hour({mk(Shape::Dot, -4, -8, 0.85f), mk(Shape::Asterisk, -4, 7, 0.9f)}); break;
    case 24: past_hour({mk(Shape::Wave, -4, 4, 18, 0, 1), mk(Shape::Dot, -4, -6, 0.85f)}); break;
    case 25: past_hour({mk(Shape::Dot, -4, -12, 0.8f), mk(Shape::InvTriangle, -4, 5, 0.9f)}); break;
    case 26: past_hour({mk(Shape::Asterisk, -4, -12, 0.8f), mk(Shape::InvTriangle, -4, 5, 0.9f)}); break;
    case 27: past_hour({mk(Shape::Triangle, -4, -12, 0.8f), mk(Shape::InvTriangle, -4, 5, 0.9f)}); break;
    case 28: fog(f, false, false, -4, 11); f.push_back(mk(Shape::Bracket, 14, 0, 1, 13)); break;
    case 29: past_hour({mk(Shape::Thunder, -4, 0, 0.9f)}); break;
    // 30-35: duststorm or sandstorm, slight or moderate, then severe.
    case 30: case 31: case 32:
      add(f, {mk(Shape::SandS, 0, 0), mk(Shape::Arrow, -14, 0, 28)});
      change_bar(f, Change(ww - 30), 19);
      break;
    case 33: case 34: case 35:
      add(f, {mk(Shape::SandS, 0, 0), mk(Shape::Arrow, -14, 0, 28, 0, 2)});
      change_bar(f, Change(ww - 33), 19);
      break;
    // 36-39: drifting snow below eye level, blowing snow above it.
    case 36: add(f, {hbar(-14, 14, -9), mk(Shape::Drift, 0, 5)}); break;
    case 37: add(f, {hbar(-14, 14, -11), mk(Shape::Drift, 0, 7, 1, 0, 1)}); break;
    case 38: add(f, {mk(Shape::Drift, 0, -2), hbar(-14, 14, 10)}); break;
    case 39: add(f, {mk(Shape::Drift, 0, 0, 1, 0, 1), hbar(-14, 14, 11)}); break;
    // 40-49: fog.
    case 40: f.push_back(mk(Shape::Paren, -17, 0, 1, 13, -1)); fog(f, false, false, 0, 10);
      f.push_back(mk(Shape::Paren, 17, 0, 1, 13, 1));
      break;
    case 41: fog(f, false, true); break;
    case 42: case 43: case 44: case 45: case 46: case 47: {
      const int k = ww - 42;
      fog(f, k % 2 == 0, false);
      change_bar(f, Change(k / 2), 18);
      break;
    }
    case 48: case 49:
      // Fog depositing rime: the bars with the wedge of rime beside them.
      fog(f, ww == 48, false, -4, 11);
      add(f, {line(10, -8, 14, 8), line(14, 8, 18, -8)});
      break;
    // 50-59: drizzle.
    case 50: case 51: case 52: case 53: case 54: case 55: drops(f, Shape::Comma, ww - 50, 0, -3); break;
    case 56: add(f, {mk(Shape::Wave, 0, 6, 24, 0, 1), mk(Shape::Comma, 0, -8, 0.85f)}); break;
    case 57: add(f, {mk(Shape::Wave, 0, 8, 26, 0, 1), mk(Shape::Comma, -7, -8, 0.85f), mk(Shape::Comma, 7, -8, 0.85f)});
      break;
    case 58: add(f, {mk(Shape::Comma, 0, -11, 0.85f), mk(Shape::Dot, 0, 8, 0.85f)}); break;
    case 59: add(f, {mk(Shape::Comma, 0, -16, 0.8f), mk(Shape::Dot, 0, 0, 0.8f), mk(Shape::Comma, 0, 12, 0.8f)}); break;
    // 60-69: rain.
    case 60: case 61: case 62: case 63: case 64: case 65: drops(f, Shape::Dot, ww - 60); break;
    case 66: add(f, {mk(Shape::Wave, 0, 6, 24, 0, 1), mk(Shape::Dot, 0, -8, 0.85f)}); break;
    case 67: add(f, {mk(Shape::Wave, 0, 8, 26, 0, 1), mk(Shape::Dot, -7, -8, 0.85f), mk(Shape::Dot, 7, -8, 0.85f)}); break;
    case 68: add(f, {mk(Shape::Dot, 0, -8, 0.85f), mk(Shape::Asterisk, 0, 8, 0.9f)}); break;
    case 69: add(f, {mk(Shape::Dot, 0, -16, 0.8f), mk(Shape::Asterisk, 0, 0, 0.85f), mk(Shape::Dot, 0, 16, 0.8f)}); break;
    // 70-79: solid precipitation, not in showers.
    case 70: case 71: case 72: case 73: case 74: case 75: drops(f, Shape::Asterisk, ww - 70); break;
    case 76: f.push_back(mk(Shape::Arrow, -13, 0, 26, 0, 1)); break;
    case 77: add(f, {mk(Shape::Triangle, 0, 0), hbar(-14, 14, 0)}); break;
    case 78: add(f, {mk(Shape::Asterisk, 0, 0), hbar(-14, 14, 0)}); break;
    case 79: add(f, {mk(Shape::Triangle, 0, 0, 1.3f), mk(Shape::Dot, 0, 1.5f, 0.5f)}); break;
    // 80-90: showers; the triangle is open when slight, barred when moderate
    // or heavy, filled when violent.
    case 80: shower(0, {mk(Shape::Dot, 0, -12, 0.85f)}); break;
    case 81: shower(1, {mk(Shape::Dot, 0, -12, 0.85f)}); break;
    case 82: shower(2, {mk(Shape::Dot, 0, -12, 0.85f)}); break;
    case 83: shower(0, {mk(Shape::Dot, 0, -22, 0.7f), mk(Shape::Asterisk, 0, -10, 0.75f)}); break;
    case 84: shower(1, {mk(Shape::Dot, 0, -22, 0.7f), mk(Shape::Asterisk, 0, -10, 0.75f)}); break;
    case 85: shower(0, {mk(Shape::Asterisk, 0, -12, 0.85f)}); break;
    case 86: shower(1, {mk(Shape::Asterisk, 0, -12, 0.85f)}); break;
    case 87: shower(0, {mk(Shape::Triangle, 0, -12, 0.8f)}); break;
    case 88: shower(1, {mk(Shape::Triangle, 0, -12, 0.8f)}); break;
    case 89: shower(0, {mk(Shape::Triangle, 0, -12, 0.8f, 0, 1)}); break;
    case 90: shower(1, {mk(Shape::Triangle, 0, -12, 0.8f, 0, 1)}); break;
    // 91-94: thunderstorm in the past hour, precipitation now.
    case 91: storm_after({mk(Shape::Dot, 12, 0, 0.85f)}); break;
    case 92: storm_after({mk(Shape::Dot, 12, -7, 0.8f), mk(Shape::Dot, 12, 7, 0.8f)}); break;
    case 93: storm_after({mk(Shape::Asterisk, 12, 0, 0.85f)}); break;
    case 94: storm_after({mk(Shape::Asterisk, 12, -8, 0.75f), mk(Shape::Asterisk, 12, 8, 0.75f)}); break;
    // 95-99: thunderstorm now, with what it brings above its frame.
    case 95: add(f, {mk(Shape::Thunder, 0, 4, 0.9f), mk(Shape::Dot, 0, -20, 0.75f)}); break;
    case 96: add(f, {mk(Shape::Thunder, 0, 4, 0.9f), mk(Shape::Triangle, 0, -21, 0.7f)}); break;
    case 97: add(f, {mk(Shape::Thunder, 0, 4, 0.9f, 0, 1), mk(Shape::Dot, 0, -20, 0.75f)}); break;
    case 98: add(f, {mk(Shape::Thunder, 0, 5, 0.85f), mk(Shape::SandS, 0, -20, 0.55f), mk(Shape::Arrow, -6, -20, 12)}); break;
    case 99: add(f, {mk(Shape::Thunder, 0, 4, 0.9f, 0, 1), mk(Shape::Triangle, 0, -21, 0.7f, 0, 1)}); break;
    default: break;
  }
  return f;
}

Figure past_weather_figure(int w) {
  Figure f;
  switch (w) {
    case 0: f.push_back(mk(Shape::Circle, 0, 0, 11, 0, 0)); break;  // half the sky or less
    case 1: f.push_back(mk(Shape::Circle, 0, 0, 11, 0, 4)); break;  // more than half, part of the time
    case 2: f.push_back(mk(Shape::Circle, 0, 0, 11, 0, 8)); break;  // overcast throughout
    case 3: add(f, {mk(Shape::SandS, 0, 0), mk(Shape::Arrow, -12, 0, 24)}); break;
    case 4: fog(f, false, false); break;
    case 5: f.push_back(mk(Shape::Comma, 0, -3)); break;
    case 6: f.push_back(mk(Shape::Dot, 0, 0)); break;
    case 7: f.push_back(mk(Shape::Asterisk, 0, 0)); break;
    case 8: f.push_back(mk(Shape::InvTriangle, 0, 0)); break;
    case 9: f.push_back(mk(Shape::Thunder, 0, 0)); break;
    default: break;
  }
  return f;
}

// The ground surface, with its extent: 1 less than half, 2 half or more, 3 all.
Primitive ground(int extent = 3, float y = 10) {
  const float right = extent == 1 ? 0 : extent == 2 ? 7 : 15;
  return hbar(-15, right, y);
}

Figure ground_figure(int e) {
  Figure f;
  switch (e) {
    case 0: f.push_back(ground()); break;                                               // dry
    case 1: add(f, {ground(), mk(Shape::Dot, 0, 0, 0.8f)}); break;                        // moist
    case 2: add(f, {ground(), mk(Shape::Wave, 0, 2, 22, 0, 2)}); break;                   // wet, puddles
    case 3: add(f, {ground(), mk(Shape::Wave, 0, -8, 22, 0, 2), mk(Shape::Wave, 0, 2, 22, 0, 2)}); break;  // flooded
    case 4: add(f, {ground(), hbar(-15, 15, 4)}); break;                                  // frozen
    case 5: add(f, {ground(), mk(Shape::Wave, 0, 3, 22, 0, 1), mk(Shape::Dot, 0, -8, 0.7f)}); break;  // glaze
    case 6: add(f, {ground(1), mk(Shape::SandS, -8, -2, 0.6f)}); break;                   // dust, not all over
    case 7: add(f, {ground(), mk(Shape::SandS, 0, -2, 0.6f)}); break;                     // thin dust cover
    case 8: add(f, {ground(), mk(Shape::SandS, -7, -2, 0.6f), mk(Shape::SandS, 7, -2, 0.6f)}); break;  // thick
    case 9: add(f, {ground(), line(-8, 10, -4, 16), line(-4, 16, 0, 10), line(2, 10, 6, 16), line(6, 16, 10, 10),
                    mk(Shape::SandS, 0, -4, 0.5f)});
      break;  // extremely dry, cracked
    default: break;
  }
  return f;
}

Figure snow_ground_figure(int e) {
  Figure f;
  auto cover = [&](int extent, int flakes, bool uneven) {
    // An uneven layer lies as a wave on the ground, the flakes above it.
    const float y = uneven ? -10 : -2;
    f.push_back(ground(extent));
    if (flakes == 1) f.push_back(mk(Shape::Asterisk, -3, y, 0.8f));
    else add(f, {mk(Shape::Asterisk, -9, y, 0.7f), mk(Shape::Asterisk, 5, y, 0.7f)});
    if (uneven) f.push_back(mk(Shape::Wave, 0, 6, 30, 0, 2));
  };
  switch (e) {
    case 0: add(f, {ground(), mk(Shape::Triangle, 0, 0)}); break;  // mainly ice
    case 1: cover(1, 1, false); break;  // compact or wet snow, less than half
    case 2: cover(2, 1, false); break;  // at least half
    case 3: cover(3, 1, false); break;  // an even layer over all
    case 4: cover(3, 1, true); break;   // an uneven layer over all
    case 5: cover(1, 2, false); break;  // loose dry snow, less than half
    case 6: cover(2, 2, false); break;
    case 7: cover(3, 2, false); break;
    case 8: cover(3, 2, true); break;
    case 9: add(f, {ground(), mk(Shape::Asterisk, -8, -6, 0.7f), mk(Shape::Drift, 2, 2, 0.7f)}); break;  // deep drifts
    default: break;
  }
  return f;
}

// Low clouds: cumulus domes, stratocumulus, stratus and cumulonimbus.
Figure low_cloud_figure(int c) {
  Figure f;
  switch (c) {
    case 1: f.push_back(mk(Shape::Dome, 0, 6, 12, 10, 1)); break;                                  // Cu humilis
    case 2: add(f, {mk(Shape::Dome, 0, 10, 13, 8, 1), mk(Shape::Dome, 0, 2, 6, 9)}); break;         // Cu congestus
    case 3: add(f, {hbar(-13, 13, 10), line(-11, 10, -6, -8), line(11, 10, 6, -8), hbar(-8, 8, -8)}); break;  // Cb calvus
    case 4: add(f, {hbar(-15, 15, 4), mk(Shape::Dome, 0, 4, 7, 8)}); break;                        // Sc from Cu
    case 5: add(f, {hbar(-15, 15, 4), mk(Shape::Dome, 0, 4, 13, 6)}); break;                       // Sc
    case 6: f.push_back(hbar(-15, 15, 0)); break;                                                  // St
    case 7: add(f, {hbar(-16, -8, 0), hbar(-4, 4, 0), hbar(8, 16, 0)}); break;                     // fractus
    case 8: add(f, {mk(Shape::Dome, 0, -3, 8, 7, 1), hbar(-15, 15, 9), mk(Shape::Dome, 0, 9, 12, 4)}); break;  // Cu and Sc
    case 9:  // Cb capillatus: the anvil over the tower
      add(f, {hbar(-13, 13, 12), line(-10, 12, -5, -6), line(10, 12, 5, -6), line(-15, -12, 15, -12),
              line(-5, -6, -12, -12), line(5, -6, 12, -12)});
      break;
    default: break;
  }
  return f;
}

// Middle clouds: altostratus strokes and altocumulus cups.
Figure middle_cloud_figure(int c) {
  Figure f;
  switch (c) {
    case 1: add(f, {line(-10, 10, 8, -12), hbar(-10, 12, 10)}); break;                              // As translucidus
    case 2: add(f, {line(-12, 10, 4, -12), line(-4, 10, 12, -12), hbar(-12, 12, 10)}); break;       // As opacus, Ns
    case 3: f.push_back(mk(Shape::Cup, 0, -4, 10, 10)); break;                                      // Ac translucidus
    case 4: add(f, {mk(Shape::Cup, 0, -4, 8, 9), hbar(-16, -8, -4), hbar(8, 16, -4)}); break;       // Ac in patches
    case 5: add(f, {mk(Shape::Cup, -3, -2, 8, 9), line(5, -2, 14, -14)}); break;                   // Ac invading
    case 6: add(f, {mk(Shape::Cup, 0, 0, 10, 9), mk(Shape::Dome, 0, -4, 6, 7, 1)}); break;          // Ac from Cu
    case 7: add(f, {mk(Shape::Cup, 0, -6, 9, 9), hbar(-13, 13, 9)}); break;                         // Ac double, with As
    case 8: add(f, {mk(Shape::Cup, 0, 2, 9, 9), line(-9, 2, -9, -9), line(9, 2, 9, -9),
                    mk(Shape::Dome, -9, -9, 3, 3), mk(Shape::Dome, 9, -9, 3, 3)});
      break;  // Ac castellanus
    case 9: add(f, {mk(Shape::Cup, -5, -6, 8, 8), mk(Shape::Cup, 6, 4, 8, 8)}); break;             // chaotic sky
    default: break;
  }
  return f;
}

// High clouds: cirrus hooks, cirrostratus, cirrocumulus.
Figure high_cloud_figure(int c) {
  Figure f;
  switch (c) {
    case 1: f.push_back(mk(Shape::Hook, -12, 4, 22)); break;                                        // Ci fibratus
    case 2: add(f, {mk(Shape::Hook, -12, 6, 22), mk(Shape::Dome, -6, 6, 5, 6, 1)}); break;          // Ci spissatus
    case 3: add(f, {mk(Shape::Hook, -12, 8, 22), mk(Shape::Dome, 0, -1, 9, 8)}); break;             // Ci from Cb
    case 4: add(f, {mk(Shape::Hook, -12, 8, 22), line(-12, 8, -4, -12)}); break;                   // Ci invading
    case 5: add(f, {mk(Shape::Hook, -12, 10, 22), line(-12, 10, -2, -2), hbar(-2, 12, -2)}); break; // Cs, below 45 deg
    case 6: add(f, {mk(Shape::Hook, -12, 10, 22), line(-12, 10, -2, -12), hbar(-2, 12, -12)}); break;  // Cs, above 45 deg
    case 7: add(f, {mk(Shape::Hook, -14, 6, 26), mk(Shape::Hook, -14, -6, 26, 0, 1)}); break;      // Cs, whole sky
    case 8: add(f, {mk(Shape::Hook, -12, 6, 22), hbar(-12, 12, -6)}); break;                        // Cs, not invading
    case 9: add(f, {mk(Shape::Cup, -6, 0, 5, 6), mk(Shape::Cup, 6, 0, 5, 6), mk(Shape::Hook, 11, 0, 4)}); break;  // Cc
    default: break;
  }
  return f;
}

struct Library {
  std::unordered_map<std::string, Figure> figures;
  std::vector<SymbolTable> tables;

  void table(std::string name, std::string title, std::string prefix, int from, int to, bool two_figures,
             Figure (*make)(int)) {
    SymbolTable t{std::move(name), std::move(title), {}};
    for (int i = from; i <= to; ++i) {
      std::string id = prefix;
      if (two_figures) id += char('0' + i / 10);
      id += char('0' + i % 10);
      figures.emplace(id, make(i));
      t.ids.push_back(std::move(id));
    }
    tables.push_back(std::move(t));
  }

  Library() {
    table("ww", "Present weather ww", "ww", 0, 99, true, ww_figure);
    table("W", "Past weather W1 W2", "W", 0, 9, false, past_weather_figure);
    table("CL", "Low cloud CL", "CL", 1, 9, false, low_cloud_figure);
    table("CM", "Middle cloud CM", "CM", 1, 9, false, middle_cloud_figure);
    table("CH", "High cloud CH", "CH", 1, 9, false, high_cloud_figure);
    table("N", "Total cloud cover N", "N", 0, 9, false,
          [](int n) { return Figure{mk(Shape::Circle, 0, 0, 14, 0, n)}; });
    table("a", "Pressure tendency a", "a", 0, 8, false,
          [](int a) { return Figure{mk(Shape::Tendency, 0, 0, 1.3f, 0, a)}; });
    table("E", "State of ground E", "E", 0, 9, false, ground_figure);
    table("Ep", "State of ground with snow or ice E'", "Ep", 0, 9, false, snow_ground_figure);

    // The traces of the tendency dialog are the tendency symbols.
    for (int a = 0; a <= 8; ++a) figures.emplace("ntf" + std::to_string(a), figures.at("a" + std::to_string(a)));

    // The sky letters, with the cloudless sky of the entry screen.
    SymbolTable sky{"sky", "Sky letters", {}};
    for (const char* letters : {"b", "c", "bc", "o", "by", "cy", "bcy", "oy"}) {
      const std::string id = std::string("sky_") + letters;
      figures.emplace(id, Figure{Primitive{Shape::Letter, 0, 0, 1, 0, 0, letters}});
      sky.ids.push_back(id);
    }
    figures.emplace("clear-sky", figures.at("N0"));
    sky.ids.push_back("clear-sky");
    tables.push_back(std::move(sky));
  }
};

const Library& library() {
  static const Library lib;
  return lib;
}

}  // namespace

const Figure* symbol_figure(std::string_view picture_id) {
  const auto& figures = library().figures;
  auto it = figures.find(std::string(picture_id));
  return it == figures.end() || it->second.empty() ? nullptr : &it->second;
}

std::string symbol_svg(std::string_view picture_id) {
  const Figure* f = symbol_figure(picture_id);
  return f ? figure_svg(*f) : std::string();
}

const std::vector<SymbolTable>& symbol_tables() { return library().tables; }

std::string cloud_picture(std::string_view level, std::string_view type_text) {
  while (!type_text.empty() && type_text.back() == ' ') type_text.remove_suffix(1);
  if (type_text.empty()) return {};
  const char figure = type_text.back();
  if (figure < '1' || figure > '9') return {};
  return std::string(level) + figure;
}

std::string symbol_code(std::string_view id) {
  if (id.starts_with("sky_")) return std::string(id.substr(4));
  if (id == "clear-sky") return "clear";
  std::size_t i = 0;
  while (i < id.size() && !(id[i] >= '0' && id[i] <= '9')) ++i;
  return std::string(id.substr(i));
}

}  // namespace obsdesk
