#include "shell/errors.h"

namespace tarvex {

void ErrorRecord::report(std::string_view tag, const std::exception& error)
{
    ErrorProcedure = tag;
    ErrorDescription = error.what();
    ErrorNumber = static_cast<float>(ErrorCode::InvalidCall);
    ErrorLastDllError = "0";
    if (const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error)) {
        ErrorNumber = static_cast<float>(runtimeError->code());
        ErrorLastDllError = std::to_string(runtimeError->lastDllError());
    }
    ReportError();
}

void ErrorRecord::ReportError()
{
    const Steps step; // a report that fails must not bring down what it reports on
    ExitRequestedByError = 0;
    step([&] { reportWindow(); });
    if (ExitRequestedByError == 1) step([&] { exitInEmergency(); });
}

} // namespace tarvex
