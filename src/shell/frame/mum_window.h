#pragma once

#include "platform/platform.h"
#include "shell/menus.h"
#include "shell/mum.h"
#include "shell/operations.h"
#include "shell/shared.h"

namespace tarvex {

/// What the frame window's procedures work on.
struct MumContext {
    Platform& platform;
    Shared& shared;
    Mum& mum;
    Operations& operations;
};

/// The program comes up, in the order that users see. False: another copy runs; its box was shown, no setting was read
/// or written, and the process is to end at once.
bool MDIForm_Load(const MumContext& context);
/// The frame is taken down after its document window agreed.
void MDIForm_Unload(const MumContext& context);

/// The frame has another size or state: its tool windows are minimised and brought back with it.
void MDIForm_Resize(const MumContext& context);

void GetMumPosition(const MumContext& context);
/// Writes nothing while the frame is minimised, so that the last real place survives.
void SaveMumPosition(const MumContext& context);

/// Gives the gradient's resources back before an emergency exit.
void ReleaseGradientInEmergency(const MumContext& context);
/// Does nothing, and nothing depends on it.
inline void LastAttemptToSaveToolbar(const MumContext& /*context*/) {}

/// Asks the document window whether it may close, and takes everything down. False: the user stays.
bool mnuFileExit_Click(const MumContext& context);
/// The frame's own Exit: gives the gradient's resources back first.
bool mnuMumFileExit_Click(const MumContext& context);

} // namespace tarvex
