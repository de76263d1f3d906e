#pragma once

#include "cli/files/FilesRequest.h"
#include "platform/Canvas.h"

namespace lumora {

/// `lumora declip`, as it was given.
struct DeclipRequest {
    FilesRequest files;
    bool keep_length = false;
    PictureKind picture_kind = PictureKind::Png;
};

/// Rebuilds the over-driven stretches of every input. Answers the exit status, which is 0 for a
/// result of low quality too. UsageError before anything is begun.
int RunDeclipCommand(const DeclipRequest& request);

} // namespace lumora
