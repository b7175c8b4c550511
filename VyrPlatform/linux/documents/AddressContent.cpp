// Loads the content of an address with libcurl.
#include "AddressContent.h"

#include <curl/curl.h>

#include <memory>
#include <mutex>

namespace VyrPlatform {

namespace {

/// The only schemes that are followed, also in the first address.
constexpr const char* followedSchemes = "http,https";
constexpr long firstErrorStatus = 400;

struct Close
{
    void operator()(CURL* transfer) const { curl_easy_cleanup(transfer); }
    void operator()(CURLU* parts) const { curl_url_cleanup(parts); }
    void operator()(char* text) const { curl_free(text); }
};
using Transfer = std::unique_ptr<CURL, Close>;

struct Received
{
    std::string content;
    std::size_t limit;
};

/// @return less than `count` when there is too much content, which ends the transfer.
std::size_t Receive(char* bytes, std::size_t /*one*/, std::size_t count, void* received)
{
    auto& [content, limit] = *static_cast<Received*>(received);
    if (count > limit - content.size())
        return 0;
    content.append(bytes, count);
    return count;
}

Transfer NewTransfer()
{
    static std::once_flag isReady;
    std::call_once(isReady, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    return Transfer(curl_easy_init());
}

void SetLimits(CURL* transfer, const AddressLimits& limits)
{
    curl_easy_setopt(transfer, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(limits.connecting.count()));
    curl_easy_setopt(transfer, CURLOPT_TIMEOUT_MS, static_cast<long>(limits.everything.count()));
    curl_easy_setopt(transfer, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, static_cast<long>(limits.redirections));
    curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, followedSchemes);
    curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, followedSchemes);
    // Signals belong to the host.
    curl_easy_setopt(transfer, CURLOPT_NOSIGNAL, 1L);
}

} // namespace

std::optional<std::string> FetchContent(const std::string& address, const AddressLimits& limits)
{
    const Transfer transfer = NewTransfer();
    if (!transfer)
        return std::nullopt;
    Received received{{}, limits.size};
    SetLimits(transfer.get(), limits);
    curl_easy_setopt(transfer.get(), CURLOPT_URL, address.c_str());
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEFUNCTION, &Receive);
    curl_easy_setopt(transfer.get(), CURLOPT_WRITEDATA, &received);
    if (curl_easy_perform(transfer.get()) != CURLE_OK)
        return std::nullopt;
    long status = 0;
    curl_easy_getinfo(transfer.get(), CURLINFO_RESPONSE_CODE, &status);
    if (status >= firstErrorStatus)
        return std::nullopt;
    return std::move(received.content);
}

std::optional<std::string> PathOfFileAddress(const std::string& address)
{
    const std::unique_ptr<CURLU, Close> parts(curl_url());
    if (!parts || curl_url_set(parts.get(), CURLUPART_URL, address.c_str(), 0) != CURLUE_OK)
        return std::nullopt;
    char* path = nullptr;
    if (curl_url_get(parts.get(), CURLUPART_PATH, &path, CURLU_URLDECODE) != CURLUE_OK)
        return std::nullopt;
    return std::unique_ptr<char, Close>(path).get();
}

} // namespace VyrPlatform
