#pragma once

namespace lumora {

/// Lets the system give large pages to large memory of this process, where it can.
void UseLargePages();

} // namespace lumora
