#pragma once

/// The titles and texts of the byte layer, each once and to the letter.
namespace lumora::file_messages {

inline constexpr char kFopen[] = "Error using fopen.";
inline constexpr char kFopenRudo[] = "Error using fopen_Rudo.";
inline constexpr char kFseek[] = "Error using fseek";
inline constexpr char kFread[] = "Error using fread";
inline constexpr char kDeblank[] = "Error using deblank";
inline constexpr char kDeblank1[] = "Error using deblank1";

inline constexpr char kNoInputFile[] =
    " Cannot open specifid file for input because file not exist.";
inline constexpr char kNoFileToAddTo[] =
    " Cannot open specifid file for Add because file not exist.";
inline constexpr char kBadMode[] = "mode must be 'rb', or 'wr' or  'wb' , or 'wb+'";
inline constexpr char kBadOrigin[] = "The third operand must be SEEK_SET or SEEK_CUR or SEEK_END ";
inline constexpr char kBeyondEnd[] = "Empty matrix: out of file size";
inline constexpr char kOutOfRange[] = "Out of range";

} // namespace lumora::file_messages
