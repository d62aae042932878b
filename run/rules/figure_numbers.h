#pragma once

namespace run {

/// Numbers of attendance figures that the program itself asks for.
inline constexpr int figureHadir = 4;
inline constexpr int figureIzin = 6;
inline constexpr int figureCuti = 7;
inline constexpr int figureSakit = 8;
inline constexpr int figureLibur = 9;
inline constexpr int figureHadirSeratus = 17;
inline constexpr int figureJamBebas = 50;

} // namespace run
