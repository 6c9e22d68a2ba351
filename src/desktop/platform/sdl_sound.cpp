#include "desktop/platform/sdl_sound.h"

#include "desktop/platform/sdl_library.h"
#include "desktop/text.h"
#include "platform/errors.h"
#include "platform/posix/drive_map.h"

#include <QElapsedTimer>

#include <algorithm>

namespace tarvex {

namespace {

/// The functions of SDL that a sound needs.
struct SdlSoundCalls : SdlLibrary {
    bool load()
    {
        return loadLibrary() && find(fromFile, "SDL_RWFromFile") && find(loadWav, "SDL_LoadWAV_RW") &&
               find(freeWav, "SDL_FreeWAV") && find(open, "SDL_OpenAudioDevice") && find(queue, "SDL_QueueAudio") &&
               find(queued, "SDL_GetQueuedAudioSize") && find(pause, "SDL_PauseAudioDevice") &&
               find(close, "SDL_CloseAudioDevice") && find(delay, "SDL_Delay");
    }

    decltype(&SDL_RWFromFile) fromFile = nullptr;
    decltype(&SDL_LoadWAV_RW) loadWav = nullptr;
    decltype(&SDL_FreeWAV) freeWav = nullptr;
    decltype(&SDL_OpenAudioDevice) open = nullptr;
    decltype(&SDL_QueueAudio) queue = nullptr;
    decltype(&SDL_GetQueuedAudioSize) queued = nullptr;
    decltype(&SDL_PauseAudioDevice) pause = nullptr;
    decltype(&SDL_CloseAudioDevice) close = nullptr;
    decltype(&SDL_Delay) delay = nullptr;
};

/// Waits no longer than the sound lasts, even when the device stops taking samples.
void playOn(const SdlSoundCalls& sdl, SDL_AudioDeviceID device, const SDL_AudioSpec& form, const Uint8* samples,
            Uint32 size)
{
    constexpr Uint32 pollMilliseconds = 10;
    constexpr qint64 deviceLatency = 300; // milliseconds
    const qint64 bytesPerSecond = static_cast<qint64>(form.freq) * form.channels * SDL_AUDIO_BITSIZE(form.format) / 8;
    const qint64 longest = bytesPerSecond > 0 ? size * 1000LL / bytesPerSecond + deviceLatency : 0;
    if (sdl.queue(device, samples, size) != 0) return;
    QElapsedTimer elapsed;
    elapsed.start();
    sdl.pause(device, 0);
    while (sdl.queued(device) > 0 && elapsed.elapsed() < longest) sdl.delay(pollMilliseconds);
    const qint64 inTheDevice = bytesPerSecond > 0 ? form.samples * 1000LL / std::max(1, form.freq) : 0;
    sdl.delay(static_cast<Uint32>(std::min(inTheDevice, deviceLatency)));
}

void playFile(const SdlSoundCalls& sdl, const std::string& nativePath)
{
    SDL_AudioSpec form{};
    Uint8* samples = nullptr;
    Uint32 size = 0;
    SDL_RWops* file = sdl.fromFile(nativePath.c_str(), "rb");
    if (file == nullptr || sdl.loadWav(file, 1, &form, &samples, &size) == nullptr) return;
    if (const SDL_AudioDeviceID device = sdl.open(nullptr, 0, &form, nullptr, 0); device != 0) {
        playOn(sdl, device, form, samples, size);
        sdl.close(device);
    }
    sdl.freeWav(samples);
}

} // namespace

void SdlSound::play(const std::string& path)
{
    SdlSoundCalls sdl;
    if (!sdl.load() || sdl.initSubSystem(SDL_INIT_AUDIO) != 0) return;
    try {
        playFile(sdl, m_drives.toNative(path));
    } catch (const RuntimeError&) { // a drive that isn't there: no sound
    }
    sdl.quitSubSystem(SDL_INIT_AUDIO);
}

} // namespace tarvex
