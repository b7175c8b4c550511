// Words messages for the error stream.
#include <VyrHost/cli/Messages.h>

#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/OpenBatches.h>
#include <VyrHost/text/ErrorText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>

#include <chrono>
#include <thread>

namespace VyrHost::Cli {

void Complain(const std::string& what)
{
    VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error,
                                    "vyr: " + what + (what.ends_with('\n') ? "" : "\n"));
}

int Finish(Ui::OutputBuffer& output, int code)
{
    output.Flush();
    if (output.Error() == 0)
        return code;
    Complain("the output cannot be written: " + Text::SafeText(Text::ErrorText(output.Error())));
    return ExitCode::Output;
}

std::string CutOffNotice(const Batch::BatchInformation& batch)
{
    // A damaged journal does not tell when it began.
    const std::string time = batch.started.IsEmpty() ? "" : " of " + Text::SafeText(batch.started);
    return "batch " + std::to_string(batch.number) + time + " was cut off; \"vyr recover\" ends it";
}

void OfferRecovery()
{
    if (const auto cutOff = OpenBatches().FindCutOff())
        Complain(CutOffNotice(*cutOff));
}

Batch::LockWait WaitTenSeconds()
{
    return [waits = 0]() mutable {
        constexpr std::chrono::milliseconds pause(100);
        constexpr int mostWaits = 100;
        if (waits == 0)
            Complain("another vyr is at work; waiting up to ten seconds for its end");
        if (waits == mostWaits || VyrHostPlatform::Interrupt::WasAsked())
            return false;
        ++waits;
        std::this_thread::sleep_for(pause);
        return true;
    };
}

} // namespace VyrHost::Cli
