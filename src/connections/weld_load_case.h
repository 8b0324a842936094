// The load cases of a straight weld, a fillet or a butt weld: 0 axial force; 1, 2 axial force and
// moment; 3 moment and shear; 4, 5 axial force, moment and shear.
#pragma once

namespace orv3 {

inline constexpr int kLastWeldLoadCase = 5;

inline bool HasWeldLoadCase(int load) noexcept { return 0 <= load && load <= kLastWeldLoadCase; }
inline bool HasWeldShear(int load) noexcept { return load >= 3; }

// The stress across the weld, of the axial force on its area and the moment on its modulus.
inline double WeldSigma(int load, double force, double area, double moment,
                        double modulus) noexcept {
  return (load == 3 ? 0 : force / area) + (load == 0 ? 0 : moment / modulus);
}

}  // namespace orv3
