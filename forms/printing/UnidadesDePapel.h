#pragma once

// Units in which pages are laid out, whatever the resolution of the printer: so fine that rounding to them
// does not show.

inline constexpr double kUnidadesPorPulgada = 7200.0;
inline constexpr double kUnidadesPorMilimetro = kUnidadesPorPulgada / 25.4;
inline constexpr double kUnidadesPorPunto = kUnidadesPorPulgada / 72.0;
/// Of a picture in its natural size.
inline constexpr double kUnidadesPorPixel = kUnidadesPorPulgada / 96.0;
