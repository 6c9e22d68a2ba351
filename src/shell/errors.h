#pragma once

#include "platform/errors.h"
#include "shell/operation.h"

#include <concepts>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace tarvex {

/// The last failure of any procedure in tagged mode. The user is shown nothing of it; work goes on.
class ErrorRecord {
public:
    std::string ErrorProcedure; ///< tag of the procedure that failed last, e.g. "MODULE SaveOptions"
    float ErrorNumber = 0;      ///< an ErrorCode
    std::string ErrorDescription;
    std::string ErrorLastDllError; ///< the operating system's error code as decimal text
    std::int16_t ExitRequestedByError = 0;

    /// Runs when ExitRequestedByError is 1 after a report: gives back what must be given back, unloads the tool
    /// windows, runs the exit command and ends the process.
    Operation<> exitInEmergency;

    /// Stores the four values and calls ReportError.
    void report(std::string_view tag, const std::exception& error);
    /// Shows nothing: there is no report window to ask. Clears ExitRequestedByError and acts on it as described above.
    void ReportError();

    /// Lets a report window set ExitRequestedByError while it is asked.
    Operation<> reportWindow;
};

/// Runs the steps of a procedure: a step that throws is left, and the next one still runs.
class Steps {
public:
    /// Resume-next mode: a failed step leaves no trace.
    Steps() = default;
    /// Tagged mode: a failed step is reported under `tag`. `errors` outlives the steps.
    Steps(ErrorRecord& errors, std::string_view tag) : m_errors(&errors), m_tag(tag) {}

    /// False: the step threw; whyNot() has the reason.
    template <std::invocable Step> bool operator()(Step&& step) const
    {
        try {
            step();
            return true;
        } catch (const std::exception& error) {
            fail(error);
            return false;
        }
    }

    /// A statement that is known to fail: dealt with like a step that throws, at the price of a call.
    void fail(const std::exception& error) const
    {
        m_whyNot = error.what();
        if (m_errors) m_errors->report(m_tag, error);
    }

    /// Why the last step that threw did so, in words; empty while none has.
    const std::string& whyNot() const { return m_whyNot; }

private:
    ErrorRecord* m_errors = nullptr;
    std::string_view m_tag;
    mutable std::string m_whyNot; ///< mutable: running a step changes nothing of the procedure
};

} // namespace tarvex
