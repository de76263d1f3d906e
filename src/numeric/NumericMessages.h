#pragma once

namespace lumora {

// The texts of the matrix language, each once and to the letter, odd blanks and stops included.

// clang-format off
inline constexpr const char* kIndexExceeds          = "Index exceeds matrix dimensions.";
inline constexpr const char* kMissingTwo            = "Missing two parametrs";
inline constexpr const char* kRowRange              = "Index exceeds matrix dimensions  Or  Left > Right.";
inline constexpr const char* kColumnRange           = "Index exceeds matrix dimensions Or Top > Buttom  .";
inline constexpr const char* kMatrixRange           = "Index exceeds matrix dimensions Or Top > Buttom  Or  Left > Right.";
inline constexpr const char* kIndicesMustBeObject   = "The first parametr must be object- (clsLong)";
inline constexpr const char* kIndicesMustBeLong     = "Subscript indices must be integer values.";
inline constexpr const char* kProductsDiffer        = "Parameters Must be as NewSize1*NewSize2=size1*size2";
inline constexpr const char* kDimensionsMustAgree   = "Matrix dimensions must agree.";
inline constexpr const char* kPlusSizes             = "Error using ==> Plus(*) Inner matrix dimensions must agree.";
inline constexpr const char* kMinusSizes            = "Error using ==> Minus(*) Inner matrix dimensions must agree.";
inline constexpr const char* kTimesSizes            = "Error using ==> Times(*) Inner matrix dimensions must agree.";
inline constexpr const char* kMtimesSizes           = "Error using ==> Mtimes(*) Inner matrix dimensions must agree.";
inline constexpr const char* kRdivideSizes          = "Error using ==> Rdivide(*) Inner matrix dimensions must agree.";
inline constexpr const char* kDivideByZero          = "Divide by zero.";
inline constexpr const char* kDivideByZeroTwoStops  = "Divide by zero..";
inline constexpr const char* kDivideByZeroCapital   = "Divide by Zero.";
inline constexpr const char* kLogOfZero             = "Log of zero.";
inline constexpr const char* kOverflow              = "Overflow.";
inline constexpr const char* kOverflowNoStop        = "Overflow";
inline constexpr const char* kSingularityAtan       = "Singularity in Atan";
inline constexpr const char* kSingularityAtanh      = "Singularity in Atanh";
inline constexpr const char* kSingularityAcot       = "Singularity in Acot.";
inline constexpr const char* kIncorrectObject       = "Incorrect type of object";
inline constexpr const char* kIncorrectObjectStop   = "Incorrect type of object.";
inline constexpr const char* kIncorrectObjectBlank  = " Incorrect type of object.";
inline constexpr const char* kIncorrectBase         = "incorrect type of base";
inline constexpr const char* kNumberOrCls           = "Parametr must be number or cls";
inline constexpr const char* kIncorrectTypeOfObject = "Incorrect Type of object.";
inline constexpr const char* kIncorrectArray        = "Incorrect type of Array.";
inline constexpr const char* kIncorrectType         = "Incorrect type.";
inline constexpr const char* kMustBeArray           = "Error using  GetSizeOfArray . Type of Parrametr must be array.";
inline constexpr const char* kIncorectMatrix        = "Incorect type of matrix";
inline constexpr const char* kSolutionSquare        = "Error using ==> SolutionOfSistem Matrix must be square.";
inline constexpr const char* kInvSquare             = "Error using ==> inv Matrix must be square.";
inline constexpr const char* kSingular              = "Matrix is singular to working precision.";
inline constexpr const char* kMustBeVector          = "The  parameter must be Vector or Complex Vector";
inline constexpr const char* kPowerOfPolynom        = "The  Power of Polynom equal Zero";
inline constexpr const char* kKoefZero              = "Koef for Compression-Expansion equal zero";
inline constexpr const char* kKoefSmall             = "Koef for Compression-Expansion it is  very Small";
inline constexpr const char* kKoefMatrixZero        = "Koef for Compression-Expansion_Matrix equal zero";
inline constexpr const char* kKoefMatrixSmall       = "Koef for Compression-Expansion_Matrix it is  very Small";
inline constexpr const char* kSoundTooShort         = "Vector of sound is veri small";

// Title and body of the titled messages.
inline constexpr const char* kErrorUsingMin         = "Error using Min.";
inline constexpr const char* kErrorUsingMax         = "Error using Max.";
inline constexpr const char* kSizesMustAgree        = " Matrix dimensions must agree.";
inline constexpr const char* kErrorUsingSqrt        = "Error using Sqrt";
inline constexpr const char* kTypeNotOption         = "Type not option.";
inline constexpr const char* kErrorUsingCat         = "Error using Cat";
inline constexpr const char* kErrorUsingCatStop     = "Error using Cat.";
inline constexpr const char* kCatArguments          = " CAT arguments  are not consistent.";
inline constexpr const char* kCatDimensions         = " Matrix dimensions are not consistent.";
inline constexpr const char* kCatDimensionsBlanks   = " Matrix dimensions  are not consistent.";
inline constexpr const char* kErrorUsingEye         = "Error using Eye";
inline constexpr const char* kUnknownOption         = "Unknown command option. Imposible argument must be size()";
inline constexpr const char* kErrorUsingRearrange   = "Error using Rearrange";
inline constexpr const char* kRowsBeyond            = "Number of rows must be <=Size1 .";
inline constexpr const char* kColumnsBeyond         = "Number of Columns must be <=Size2 .";
// clang-format on

/// What stands for a quotient by zero and for other infinite values.
inline constexpr double kHuge = 1e306;

} // namespace lumora
