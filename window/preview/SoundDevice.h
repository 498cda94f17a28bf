// What sounds where the computer can: the program's own device, or one that a test listens to.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace vantor {

// Takes kSoundFramesPerSecond stereo frames a second. Used by one thread at a time.
class SoundDevice {
  public:
    // Writes the whole span, left and right in turn. Called on a thread of the device's, one call at a time.
    using Fill = std::function<void(std::span<std::int16_t> samples)>;

    SoundDevice() = default;
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;
    // Stops; waits for a device that hangs for a moment only.
    virtual ~SoundDevice() = default;

    // Begins to play what `fill` gives, and returns at once; whether there is a device shows later.
    virtual void start(Fill fill) = 0;
    // No call of `fill` begins or goes on after the return; what the device still holds is dropped unheard.
    virtual void stop() = 0;
    // Frames heard since start(); any thread.
    virtual std::int64_t playedFrames() const = 0;
    // There is no device, or it broke; any thread.
    virtual bool hasFailed() const = 0;
};

using SoundDeviceMaker = std::function<std::unique_ptr<SoundDevice>()>;

// The desktop's default output.
std::unique_ptr<SoundDevice> makeDesktopSoundDevice();

}  // namespace vantor
