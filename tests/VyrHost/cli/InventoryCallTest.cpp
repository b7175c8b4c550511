// Tests of the program: calls of "vyr programs" and "vyr browsers" that are refused.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class InventoryCall : public VyrProgram
{
protected:
    void ExpectRefused(const std::vector<CString>& arguments, const std::string& reason) const
    {
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.exitCode, 2) << reason << result.output;
        EXPECT_THAT(result.output, IsEmpty()) << reason;
        EXPECT_THAT(result.errors, HasSubstr(reason));
    }
};

} // namespace

TEST_F(InventoryCall, NamesOnePlace)
{
    ExpectRefused({u"programs", u"a", u"--wine", u"b"}, "WHERE and --wine exclude each other");
    ExpectRefused({u"programs", u"--disk", u"a", u"--hives", u"b"}, "--disk and --hives exclude each other");
    ExpectRefused({u"browsers", u"--hives", u"a", u"--wine", u"b"}, "--hives and --wine exclude each other");
    ExpectRefused({u"programs", u"missing"}, "'missing' cannot be read: ");
    ExpectRefused({u"browsers", u"."}, "'.' is neither a Wine prefix");
    ExpectRefused({u"programs", u"--disk", u"."}, "'.' is not a Windows disk");
}

TEST_F(InventoryCall, HasNoOptionsThatContradictEachOther)
{
    ExpectRefused({u"programs", u"--installer", u"--show-hidden"}, "no installer product is hidden");
    ExpectRefused({u"programs", u"--installer", u"--no-32-bit"}, "--no-32-bit exclude each other");
    ExpectRefused({u"programs", u"--user", u"Eva", u"--scope", u"machine"}, "the machine belongs to no user");
    ExpectRefused({u"programs", u"--csv", u"--json"}, "--csv and --json exclude each other");
}

TEST_F(InventoryCall, RefusesUnknownValues)
{
    ExpectRefused({u"programs", u"--scope", u"both"}, "one of all, user, machine is expected");
    ExpectRefused({u"programs", u"--columns", u"name,weight"}, "the columns are name, publisher, ");
    ExpectRefused({u"browsers", u"--sort", u"size"}, "the columns are name, type, command, ");
    ExpectRefused({u"programs", u"--installer", u"--sort", u"publisher"}, "the columns are name, icon, ");
}
