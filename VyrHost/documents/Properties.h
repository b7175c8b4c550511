/// @file
/// The properties of documents: the change of kind "properties", and what the documents of a list get.
#pragma once

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/model/Change.h>
#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Documents {

/// By which the bytes of a document are known again.
struct Fingerprint
{
    std::uint64_t size = 0;
    /// CRC-32.
    std::uint32_t check = 0;

    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

/// The fingerprint of the file; nothing when it cannot be read to its end.
[[nodiscard]] std::optional<Fingerprint> FingerprintOf(const VyrPlatform::FileReader& reader);

/// Writes a document anew with other properties. The whole old document is kept with the journal, together with the
/// fingerprint of the new one, so that it is restored byte for byte, and only where nobody has written to it since.
class PropertiesChange final : public Model::Change, public Model::KeepsFile
{
public:
    struct Document
    {
        /// Of the old document.
        Fingerprint fingerprint;
        /// What is changed of its properties as it was, in words.
        std::vector<CString> shown;
        VyrPlatform::PropertyEdit edit;
    };

    /// @param kept  how the path begins at which the batch keeps the old document; empty outside a batch.
    explicit PropertiesChange(std::shared_ptr<const Document> document, const CString& kept = {})
        : m_document(std::move(document)), m_kept(kept)
    {}

    static constexpr std::string_view kind = "properties";
    /// What the journal keeps; null for texts that are not of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] std::shared_ptr<const Model::Change> KeepingAt(const CString& kept) const override;
    void Repair(const CString& path) const override;
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t Undo(const CString& path) const override;

private:
    [[nodiscard]] std::uint32_t Keep(VyrPlatform::DocumentReplacement& replacement) const;

    std::shared_ptr<const Document> m_document;
    CString m_kept;
};

/// The kinds of change of this folder.
[[nodiscard]] Model::ChangeKinds Kinds();

/// A time as people read it, in local time.
[[nodiscard]] CString ShownTime(VyrPlatform::FileTicks ticks);

/// What the documents of a list get.
struct PropertyRequest
{
    bool clearsAll = false;
    /// Texts by the ids of their properties, with <Name> for the file's name without its extension, and <Parent> for
    /// the name of the folder that it is in; nothing clears the property.
    std::map<std::uint32_t, std::optional<CString>> values;
    /// Times by the ids of their properties.
    std::map<std::uint32_t, VyrPlatform::FileTicks> times;
    bool breaksSignatures = false;
};

/// Adds what `text`, such as "title=The <Name>" or "created=2024-01-05 10:30", sets.
/// @throws UsageError for a property that does not exist, cannot be set or is named twice, for an unknown word in angle
/// brackets, and for a time that makes no sense or that not every kind of document can hold.
void ParseProperty(std::u16string_view text, PropertyRequest& request);
/// Adds what `text`, names separated by commas, clears.
/// @throws UsageError likewise.
void ParseCleared(std::u16string_view text, PropertyRequest& request);

/// Sets some properties of documents and clears others.
class PropertiesRule final : public Metadata::ChangeRule
{
public:
    /// How much of old documents a batch keeps at most, in bytes.
    static constexpr std::uint64_t mostKept = std::uint64_t{2} << 30;

    explicit PropertiesRule(PropertyRequest request, std::uint64_t most = mostKept)
        : m_request(std::move(request)), m_most(most)
    {}

    /// What would not fit into what a batch keeps is refused.
    [[nodiscard]] Metadata::Proposal Propose(const CString& path, const Model::Entry& entry,
                                             std::size_t index) const override;

private:
    PropertyRequest m_request;
    std::uint64_t m_most;
    /// How much the batch keeps of the documents so far.
    mutable std::uint64_t m_kept = 0;
};

} // namespace VyrHost::Documents
