#pragma once

#include "base/Variant.h"

namespace lumora {

/// Writes a matrix of samples from -1 to 1 as a WAVE file of its own, at 8000 frames a second and
/// 16 bits unless told. Answers whether it did; if not, a message has told why and no file was
/// touched.
///
///   wavwrite(Y, Name)                 wavwrite(Y, Rate, Name)
///   wavwrite(Y, Name, Extra)          wavwrite(Y, Rate, Name, Extra)
///   wavwrite(Y, Rate, Bits, Name)     wavwrite(Y, Rate, Bits, Name, Flag, Extra)
///
/// Y is a clsMatrix (or another object of numbers) with a row per frame and a column per channel;
/// with at most two rows and at least three columns it has a row per channel. An array counts as
/// such a matrix, but with one dimension it is one channel. Name gets ".wav" if it has no "."; a
/// file of that name is replaced. Extra is a text for behind the data; it may always stand last.
///
/// Flag 0 or missing: a signal whose peak is above 1 is divided by peak / (1 - step), one whose
/// peak is exactly 1 has 1 - step in the place of each 1.0; step is 1/128 for 8 bits, 1/32768 for
/// 16 and 0 for others. Another Flag changes nothing. Then samples go as value x 128 + 128 in one
/// byte (up to 8 bits), value x 32768 in two (up to 16) or value x 2147483647 in four (25 to 32),
/// to nearest, half to even.
///
/// Messages: "Incorrect First parametr" (Y is no object and no array), "Cannot write WAVE files
/// with more than 16 bits/sample." (Bits of another number of bytes), and " Cannot open  WAV file
/// for output." under "Error using fopen.". Errors: 6 (a sample outside the width: nothing is
/// clipped; a field of the header outside its own), 9 (no elements), 13 (arguments of no such form;
/// elements that are no numbers), 91. All of them come before an older file is touched. While
/// writing: 61, 70, 75.
bool wavwrite(const Variant& Y, const Variant& Arg2, const Variant& Arg3 = {},
              const Variant& Arg4 = {}, const Variant& Flag = {}, const Variant& Arg6 = {});

} // namespace lumora
