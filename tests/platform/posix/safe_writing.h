// A writer in a folder of its own whose calls of the system can fail, and what a caller sees of it.
#pragma once

#include "platform/errors.h"
#include "platform/posix/faulty_calls.h"
#include "platform/posix/safe_writer.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/time.h>

namespace tarvex {

struct SafeWriting : testing::Test {
    TemporaryDirectory disk;
    FaultyCalls calls;
    SafeWriter writer{disk / "recovery", calls};
    const std::string folder = disk.makeDirectory("work");
    const std::string file = folder + "/mig.b50";

    /// The error's number; 0 when the save succeeds.
    int save(const std::string& path, std::string_view bytes)
    {
        try {
            writer.save(path, bytes);
        } catch (const RuntimeError& error) {
            text = error.what();
            return error.lastDllError();
        }
        return 0;
    }
    std::string text;

    mode_t modeOf(const std::string& path) const
    {
        struct stat status = {};
        ::stat(path.c_str(), &status);
        return status.st_mode & 07777U;
    }
    void setOld(const std::string& path) const
    {
        const timeval times[] = {{1000, 0}, {1000, 0}};
        ::utimes(path.c_str(), times);
    }
};

} // namespace tarvex
