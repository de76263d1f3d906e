# What a user of the library includes, and what that includes; all else is not installed. A test
# compiles each of them alone, with none at hand that is not installed.
set(LUMORA_PUBLIC_HEADERS
  # Numbers, arrays, values, errors, messages, byte streams, progress
  base/Array.h
  base/ByteStream.h
  base/LargeMemory.h
  base/Messages.h
  base/Numbers.h
  base/OrOutOfMemory.h
  base/Paths.h
  base/Progress.h
  base/Ref.h
  base/RunTimeError.h
  base/Variant.h
  # The matrix language
  numeric/clsComplex.h
  numeric/clsComplexMatrix.h
  numeric/clsLong.h
  numeric/clsMatrix.h
  numeric/clsMatrixComplex.h
  numeric/clsString.h
  numeric/clsVariant.h
  numeric/CopyAny.h
  numeric/Predicates.h
  numeric/elementwise/AbsAny.h
  numeric/elementwise/RealPartOf.h
  numeric/elementwise/Sqrt.h
  numeric/elementwise/TimesAny.h
  numeric/files/ArrFile.h
  numeric/linear/PolynomialRoots.h
  numeric/order/MinMax.h
  numeric/shaping/Cat.h
  numeric/shaping/TransposeAny.h
  # WAVE files
  audio/WaveRecords.h
  audio/WaveStream.h
  audio/Wavread.h
  audio/Wavwrite.h
  # Rebuilding over-driven sound
  overfilter/ModOverPolynom.h
  overfilter/OverFilterFigures.h
  overfilter/OverFilterRequest.h
  overfilter/RemoveOverStream.h
  # Changing pitch
  facade/ZELFunctions.h)
