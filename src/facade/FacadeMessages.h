#pragma once

/// What the facade says, to the letter.
namespace lumora::facade_messages {

inline constexpr char kNeedsFile[] = "For Analysing need Filename or Sound as clsmatrix";
inline constexpr char kAnalysing[] = "Analysing"; ///< the caption over it

} // namespace lumora::facade_messages
