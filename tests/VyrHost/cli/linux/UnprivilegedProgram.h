// For tests: vyr with the rights of an ordinary user, since the system refuses nothing to root.
#pragma once

#include "../VyrProgram.h"

#include <unistd.h>

namespace VyrTests {

class UnprivilegedProgram : public VyrProgram
{
protected:
    [[nodiscard]] ProgramResult RunUnprivileged(const std::vector<CString>& arguments) const
    {
        ProgramCall call = CallOf(arguments);
        if (geteuid() == 0) {
            const std::vector<CString> nobody = {u"--reuid=65534", u"--regid=65534", u"--clear-groups", call.program};
            call.arguments.insert(call.arguments.begin(), nobody.begin(), nobody.end());
            call.program = u"/usr/bin/setpriv";
        }
        return RunProgram(call);
    }
};

} // namespace VyrTests
