#pragma once

#include "platform/platform.h"

namespace tarvex {

class DriveMap;

/// Plays WAV files through SDL, which is loaded when the first sound is played, so that nothing waits for it before.
/// Without SDL or a sound device every file is passed over at once.
class SdlSound final : public Sound {
public:
    /// The drives outlive this.
    explicit SdlSound(const DriveMap& drives) : m_drives(drives) {}
    void play(const std::string& path) override;

private:
    const DriveMap& m_drives;
};

} // namespace tarvex
