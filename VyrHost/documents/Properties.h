/// @file
/// Changes of document properties: the change of kind "properties", and the rule for the documents of a list.
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

/// Identifies the bytes of a document.
struct Fingerprint
{
    std::uint64_t size = 0;
    /// CRC-32.
    std::uint32_t check = 0;

    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
};

/// The fingerprint of the file; nothing when it cannot be read to its end.
[[nodiscard]] std::optional<Fingerprint> FingerprintOf(const VyrPlatform::FileReader& reader);

/// Replaces a document by one with other properties. Keeps the whole old document with the journal, and the fingerprint
/// of the new one, so that an undo restores it byte for byte, but only if nobody has modified the document since.
class PropertiesChange final : public Model::Change, public Model::KeepsFile
{
public:
    struct Document
    {
        /// Of the old document.
        Fingerprint fingerprint;
        /// The old values of the changed properties, in words.
        std::vector<CString> shown;
        VyrPlatform::PropertyEdit edit;
    };

    /// @param kept  the beginning of the path at which the batch keeps the old document; empty outside a batch.
    explicit PropertiesChange(std::shared_ptr<const Document> document, const CString& kept = {})
        : m_document(std::move(document)), m_kept(kept)
    {}

    static constexpr std::string_view kind = "properties";
    /// Reads the texts of the journal; null for texts that are not of this kind.
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

/// A time for people, in local time.
[[nodiscard]] CString ShownTime(VyrPlatform::FileTicks ticks);

/// New values for the documents of a list.
struct PropertyRequest
{
    bool clearsAll = false;
    /// Texts by the ids of their properties; no text clears the property. <Name> stands for the file's name without its
    /// extension, and <Parent> for the name of its folder.
    std::map<std::uint32_t, std::optional<CString>> values;
    /// Times by the ids of their properties.
    std::map<std::uint32_t, VyrPlatform::FileTicks> times;
    bool breaksSignatures = false;
};

/// Adds what `text`, such as "title=The <Name>" or "created=2024-01-05 10:30", sets.
/// @throws UsageError for a property that does not exist, cannot be set or is named twice, for an unknown token, and
/// for a time that is invalid or that not every kind of document can store.
void ParseProperty(std::u16string_view text, PropertyRequest& request);
/// Adds the properties that `text`, names separated by commas, clears.
/// @throws UsageError in the same cases.
void ParseCleared(std::u16string_view text, PropertyRequest& request);

/// Sets some properties of documents and clears others.
class PropertiesRule final : public Metadata::ChangeRule
{
public:
    /// The maximum size of the old documents that a batch keeps, in bytes.
    static constexpr std::uint64_t mostKept = std::uint64_t{2} << 30;

    explicit PropertiesRule(PropertyRequest request, std::uint64_t most = mostKept)
        : m_request(std::move(request)), m_most(most)
    {}

    /// Refuses a document that would exceed `mostKept`.
    [[nodiscard]] Metadata::Proposal Propose(const CString& path, const Model::Entry& entry,
                                             std::size_t index) const override;

private:
    PropertyRequest m_request;
    std::uint64_t m_most;
    /// The size of the documents that the batch keeps so far.
    mutable std::uint64_t m_kept = 0;
};

} // namespace VyrHost::Documents
