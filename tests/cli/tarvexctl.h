#pragma once

#include "support/temporary_directory.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {

/// What a run of tarvexctl left.
struct CliResult {
    int status = -1; ///< exit status; 128 and the signal's number when one ended it
    std::string out;
    std::string err;

    nlohmann::ordered_json json() const { return nlohmann::ordered_json::parse(out); }
};

/// Starts the real program in a directory of its own.
class CliTest : public testing::Test {
protected:
    TemporaryDirectory directory;

    /// `input` is what it reads on standard input; `out` takes its standard output.
    CliResult tarvexctl(const std::vector<std::string>& arguments, const std::string& input = {},
                        std::string out = {}) const
    {
        const bool keep = out.empty();
        if (keep) out = directory / "stdout";
        const std::string err = directory / "stderr";
        const std::string in = directory.put("stdin", input);
        const pid_t child = fork();
        if (child == 0) {
            redirect(in, O_RDONLY, STDIN_FILENO);
            redirect(out, O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
            redirect(err, O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
            start(arguments);
        }
        int ended = 0;
        waitpid(child, &ended, 0);
        return {WIFEXITED(ended) ? WEXITSTATUS(ended) : 128 + WTERMSIG(ended), keep ? bytesOf(out) : "", bytesOf(err)};
    }

private:
    static void redirect(const std::string& path, int mode, int descriptor)
    {
        dup2(open(path.c_str(), mode, 0600), descriptor);
    }
    [[noreturn]] static void start(const std::vector<std::string>& arguments)
    {
        std::string program = TARVEXCTL;
        std::vector<std::string> copies = arguments;
        std::vector<char*> argv{program.data()};
        for (std::string& argument : copies) argv.push_back(argument.data());
        argv.push_back(nullptr);
        execv(program.c_str(), argv.data());
        _exit(127);
    }
};

} // namespace tarvex
