// Content from addresses: slow, endless and cyclic servers, and truncated answers, end within the limits.
#include <VyrPlatform/documents/ComText.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/linux/documents/AddressContent.h>
#include <VyrPlatform/text/Encoding.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/linux/LoopbackServer.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/stat.h>

using VyrPlatform::AddressLimits;
using VyrPlatform::FetchContent;
using VyrTests::LoopbackServer;

namespace {

std::string Whole(const std::string& body)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string Redirection(const std::string& to)
{
    return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + to + "\r\n\r\n";
}

/// A server that answers each request with the same bytes.
LoopbackServer::Handler Always(std::string bytes)
{
    return [bytes = std::move(bytes)](const std::string&, const LoopbackServer::Answer& answer) {
        static_cast<void>(answer.Send(bytes));
    };
}

/// Limits that a test can wait for.
AddressLimits ShortLimits()
{
    AddressLimits limits;
    limits.everything = std::chrono::milliseconds(300);
    return limits;
}

class AddressContentTest : public testing::Test
{
protected:
    // The servers of these tests are reached without a proxy.
    static void SetUpTestSuite() { setenv("no_proxy", "*", 1); }
    static void TearDownTestSuite() { unsetenv("no_proxy"); }
};

} // namespace

TEST_F(AddressContentTest, WholeContentIsFetched)
{
    const LoopbackServer server([](const std::string& path, const LoopbackServer::Answer& answer) {
        static_cast<void>(answer.Send(Whole("content of " + path)));
    });
    EXPECT_EQ(FetchContent(server.Address("/a?b=c")), "content of /a?b=c");
    const LoopbackServer empty(Always(Whole("")));
    EXPECT_EQ(FetchContent(empty.Address("/")), "");
}

TEST_F(AddressContentTest, ErrorOfTheServerGivesNothing)
{
    for (const char* const status : {"400 Bad Request", "404 Not Found", "503 Service Unavailable"}) {
        const LoopbackServer server(Always("HTTP/1.1 " + std::string(status) + "\r\nContent-Length: 4\r\n\r\n<r/>"));
        EXPECT_EQ(FetchContent(server.Address("/")), std::nullopt) << status;
    }
}

TEST_F(AddressContentTest, FiveRedirectionsAreFollowed)
{
    const LoopbackServer server([](const std::string& path, const LoopbackServer::Answer& answer) {
        const int left = std::atoi(path.c_str() + 1);
        static_cast<void>(answer.Send(left == 0 ? Whole("arrived") : Redirection('/' + std::to_string(left - 1))));
    });
    EXPECT_EQ(FetchContent(server.Address("/5")), "arrived");
    EXPECT_EQ(server.CountQuestions(), 6);
    EXPECT_EQ(FetchContent(server.Address("/6")), std::nullopt);
}

TEST_F(AddressContentTest, CycleOfRedirectionsEnds)
{
    const LoopbackServer server(Always(Redirection("/again")));
    EXPECT_EQ(FetchContent(server.Address("/")), std::nullopt);
    EXPECT_EQ(server.CountQuestions(), 6);
}

TEST_F(AddressContentTest, RedirectionsLeadToServersOnly)
{
    const VyrTests::ScratchFolder folder;
    const std::string path = VyrPlatform::Encoding::ToUtf8(folder.WriteFile(u"a.xml", "<r/>"));
    for (const std::string& to :
         {"file://" + path, std::string("ftp://127.0.0.1/a"), std::string("gopher://127.0.0.1/a")}) {
        const LoopbackServer server(Always(Redirection(to)));
        EXPECT_EQ(FetchContent(server.Address("/")), std::nullopt) << to;
    }
}

TEST_F(AddressContentTest, OtherKindsOfAddressesAreNotFetched)
{
    const VyrTests::ScratchFolder folder;
    const std::string path = VyrPlatform::Encoding::ToUtf8(folder.WriteFile(u"a.xml", "<r/>"));
    for (const std::string& address :
         {"file://" + path, std::string("ftp://127.0.0.1/a"), std::string("dict://127.0.0.1/a"), std::string("http://"),
          std::string("http:// /"), std::string()})
        EXPECT_EQ(FetchContent(address, ShortLimits()), std::nullopt) << address;
}

TEST_F(AddressContentTest, EndlessContentEndsAtTheLimit)
{
    const LoopbackServer server([](const std::string&, const LoopbackServer::Answer& answer) {
        const std::string piece(65536, 'x');
        bool isSent = answer.Send("HTTP/1.1 200 OK\r\n\r\n");
        while (isSent)
            isSent = answer.Send(piece);
    });
    EXPECT_EQ(FetchContent(server.Address("/")), std::nullopt);
}

TEST_F(AddressContentTest, ContentOfTheLimitItselfIsFetched)
{
    AddressLimits limits;
    limits.size = 1000;
    const LoopbackServer within(Always(Whole(std::string(1000, 'x'))));
    EXPECT_EQ(FetchContent(within.Address("/"), limits), std::string(1000, 'x'));
    const LoopbackServer beyond(Always(Whole(std::string(1001, 'x'))));
    EXPECT_EQ(FetchContent(beyond.Address("/"), limits), std::nullopt);
}

TEST_F(AddressContentTest, ServerThatHangsIsLeft)
{
    const LoopbackServer silent([](const std::string&, const LoopbackServer::Answer& answer) { answer.Hang(); });
    EXPECT_EQ(FetchContent(silent.Address("/"), ShortLimits()), std::nullopt);
    const LoopbackServer halfway([](const std::string&, const LoopbackServer::Answer& answer) {
        if (answer.Send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<r>"))
            answer.Hang();
    });
    EXPECT_EQ(FetchContent(halfway.Address("/"), ShortLimits()), std::nullopt);
}

TEST_F(AddressContentTest, SlowServerIsLeftWhenTheTimeIsOver)
{
    const LoopbackServer server([](const std::string&, const LoopbackServer::Answer& answer) {
        bool isSent = answer.Send("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");
        while (isSent) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            isSent = answer.Send("x");
        }
    });
    EXPECT_EQ(FetchContent(server.Address("/"), ShortLimits()), std::nullopt) << "though it never stops sending";
}

TEST_F(AddressContentTest, ContentThatIsCutOffGivesNothing)
{
    const LoopbackServer counted(Always("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<r/>"));
    EXPECT_EQ(FetchContent(counted.Address("/")), std::nullopt);
    const LoopbackServer chunked(Always("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\n<r/>\r\n"));
    EXPECT_EQ(FetchContent(chunked.Address("/")), std::nullopt);
    const LoopbackServer headless(Always("HTTP/1.1 200 OK\r\nContent-"));
    EXPECT_EQ(FetchContent(headless.Address("/")).value_or(""), "");
    const LoopbackServer nonsense(Always("no such answer\r\n\r\n"));
    EXPECT_EQ(FetchContent(nonsense.Address("/")), std::nullopt);
}

TEST_F(AddressContentTest, AddressWithoutAServerGivesNothing)
{
    std::string address;
    {
        const LoopbackServer server(Always(Whole("")));
        address = server.Address("/");
    }
    EXPECT_EQ(FetchContent(address), std::nullopt);
}

TEST_F(AddressContentTest, ServerWithoutACertificateGetsNoRequest)
{
    const LoopbackServer server(Always(Whole("<r/>")));
    std::string address = server.Address("/");
    address.insert(4, "s");
    EXPECT_EQ(FetchContent(address, ShortLimits()), std::nullopt);
    EXPECT_EQ(server.CountQuestions(), 0);
}

TEST_F(AddressContentTest, FileAddressesNamePaths)
{
    using VyrPlatform::PathOfFileAddress;
    EXPECT_EQ(PathOfFileAddress("file:///tmp/a.xml"), "/tmp/a.xml");
    EXPECT_EQ(PathOfFileAddress("FILE://localhost/tmp/a.xml"), "/tmp/a.xml");
    EXPECT_EQ(PathOfFileAddress("file:///tmp/a%20%c3%a4.xml"), "/tmp/a \xC3\xA4.xml");
    EXPECT_EQ(PathOfFileAddress("file://elsewhere/tmp/a.xml"), std::nullopt);
    EXPECT_EQ(PathOfFileAddress("file:///tmp/a%00.xml"), std::nullopt);
}

TEST_F(AddressContentTest, DocumentsLoadFromAddresses)
{
    constexpr CLSID documentClass{0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
    const auto loads = [&](const CString& address) {
        const MSXML2::IXMLDOMDocumentPtr document(documentClass);
        VARIANT_BOOL isLoaded = VARIANT_FALSE;
        const HRESULT result = document->load(_variant_t(VyrPlatform::ToBstr(address)), &isLoaded);
        EXPECT_EQ(result, isLoaded == VARIANT_TRUE ? S_OK : S_FALSE);
        return isLoaded == VARIANT_TRUE;
    };
    const LoopbackServer server([](const std::string& path, const LoopbackServer::Answer& answer) {
        static_cast<void>(answer.Send(Whole(path == "/good.xml" ? "<r/>" : "not XML")));
    });
    const auto addressOf = [&](const std::string& path) {
        return VyrPlatform::Encoding::FromUtf8(server.Address(path));
    };
    EXPECT_TRUE(loads(addressOf("/good.xml")));
    EXPECT_FALSE(loads(addressOf("/bad.xml")));
    const VyrTests::ScratchFolder folder;
    const CString path = folder.WriteFile(u"\u00E4 b.xml", "<r/>");
    EXPECT_FALSE(loads(u"file://" + folder.Path(u"missing.xml")));
    EXPECT_TRUE(loads(u"file://" + folder.Path() + u"/%C3%A4%20b.xml"));
    const CString pipe = folder.Path(u"pipe");
    ASSERT_EQ(mkfifo(VyrPlatform::Encoding::ToNameBytes(pipe).c_str(), 0600), 0);
    EXPECT_FALSE(loads(u"file://" + pipe)) << "it is not waited for";
    EXPECT_FALSE(loads(u"file:///dev/zero"));
    EXPECT_FALSE(loads(u"ftp://127.0.0.1/a.xml"));
}
