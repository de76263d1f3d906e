#pragma once

namespace lumora {

// The texts of the matrix language, each once and to the letter, odd blanks and stops included.

// clang-format off
inline constexpr auto kIndexExceeds          = "Index exceeds matrix dimensions.";
inline constexpr auto kMissingTwo            = "Missing two parametrs";
inline constexpr auto kRowRange              = "Index exceeds matrix dimensions  Or  Left > Right.";
inline constexpr auto kColumnRange           = "Index exceeds matrix dimensions Or Top > Buttom  .";
inline constexpr auto kMatrixRange           = "Index exceeds matrix dimensions Or Top > Buttom  Or  Left > Right.";
inline constexpr auto kIndicesMustBeObject   = "The first parametr must be object- (clsLong)";
inline constexpr auto kIndicesMustBeLong     = "Subscript indices must be integer values.";
inline constexpr auto kProductsDiffer        = "Parameters Must be as NewSize1*NewSize2=size1*size2";
inline constexpr auto kDimensionsMustAgree   = "Matrix dimensions must agree.";
inline constexpr auto kPlusSizes             = "Error using ==> Plus(*) Inner matrix dimensions must agree.";
inline constexpr auto kMinusSizes            = "Error using ==> Minus(*) Inner matrix dimensions must agree.";
inline constexpr auto kTimesSizes            = "Error using ==> Times(*) Inner matrix dimensions must agree.";
inline constexpr auto kMtimesSizes           = "Error using ==> Mtimes(*) Inner matrix dimensions must agree.";
inline constexpr auto kRdivideSizes          = "Error using ==> Rdivide(*) Inner matrix dimensions must agree.";
inline constexpr auto kDivideByZero          = "Divide by zero.";
inline constexpr auto kDivideByZeroTwoStops  = "Divide by zero..";
inline constexpr auto kDivideByZeroCapital   = "Divide by Zero.";
inline constexpr auto kLogOfZero             = "Log of zero.";
inline constexpr auto kOverflow              = "Overflow.";
inline constexpr auto kOverflowNoStop        = "Overflow";
inline constexpr auto kSingularityAtan       = "Singularity in Atan";
inline constexpr auto kSingularityAtanh      = "Singularity in Atanh";
inline constexpr auto kSingularityAcot       = "Singularity in Acot.";
inline constexpr auto kIncorrectObject       = "Incorrect type of object";
inline constexpr auto kIncorrectObjectStop   = "Incorrect type of object.";
inline constexpr auto kIncorrectObjectBlank  = " Incorrect type of object.";
inline constexpr auto kIncorrectBase         = "incorrect type of base";
inline constexpr auto kNumberOrCls           = "Parametr must be number or cls";
inline constexpr auto kIncorrectTypeOfObject = "Incorrect Type of object.";
inline constexpr auto kIncorrectArray        = "Incorrect type of Array.";
inline constexpr auto kIncorrectType         = "Incorrect type.";
inline constexpr auto kMustBeArray           = "Error using  GetSizeOfArray . Type of Parrametr must be array.";
inline constexpr auto kIncorectMatrix        = "Incorect type of matrix";
inline constexpr auto kSolutionSquare        = "Error using ==> SolutionOfSistem Matrix must be square.";
inline constexpr auto kInvSquare             = "Error using ==> inv Matrix must be square.";
inline constexpr auto kSingular              = "Matrix is singular to working precision.";
inline constexpr auto kMustBeVector          = "The  parameter must be Vector or Complex Vector";
inline constexpr auto kPowerOfPolynom        = "The  Power of Polynom equal Zero";
inline constexpr auto kKoefZero              = "Koef for Compression-Expansion equal zero";
inline constexpr auto kKoefSmall             = "Koef for Compression-Expansion it is  very Small";
inline constexpr auto kKoefMatrixZero        = "Koef for Compression-Expansion_Matrix equal zero";
inline constexpr auto kKoefMatrixSmall       = "Koef for Compression-Expansion_Matrix it is  very Small";
inline constexpr auto kSoundTooShort         = "Vector of sound is veri small";

// Title and body of the titled messages.
inline constexpr auto kErrorUsingMin         = "Error using Min.";
inline constexpr auto kErrorUsingMax         = "Error using Max.";
inline constexpr auto kSizesMustAgree        = " Matrix dimensions must agree.";
inline constexpr auto kErrorUsingSqrt        = "Error using Sqrt";
inline constexpr auto kTypeNotOption         = "Type not option.";
inline constexpr auto kErrorUsingCat         = "Error using Cat";
inline constexpr auto kErrorUsingCatStop     = "Error using Cat.";
inline constexpr auto kCatArguments          = " CAT arguments  are not consistent.";
inline constexpr auto kCatDimensions         = " Matrix dimensions are not consistent.";
inline constexpr auto kCatDimensionsBlanks   = " Matrix dimensions  are not consistent.";
inline constexpr auto kErrorUsingEye         = "Error using Eye";
inline constexpr auto kUnknownOption         = "Unknown command option. Imposible argument must be size()";
inline constexpr auto kErrorUsingRearrange   = "Error using Rearrange";
inline constexpr auto kRowsBeyond            = "Number of rows must be <=Size1 .";
inline constexpr auto kColumnsBeyond         = "Number of Columns must be <=Size2 .";
// clang-format on

/// What stands for a quotient by zero and for other infinite values.
inline constexpr double kHuge = 1e306;

} // namespace lumora
