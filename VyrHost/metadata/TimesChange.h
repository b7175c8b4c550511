/// @file
/// The change of a file's times: the kind "times".
#pragma once

#include <VyrHost/metadata/FileDate.h>
#include <VyrHost/model/Change.h>

#include <vector>

namespace VyrHost::Metadata {

/// One of the times that a change sets.
struct TimeStep
{
    FileDate date = FileDate::Modified;
    VyrPlatform::FileTicks before = 0;
    /// The same exactly, as ExactState keeps it.
    CString beforeState;
    /// More than 0.
    VyrPlatform::FileTicks after = 0;
};

/// Sets times by DateTimeFuncs::SetModifiedFileDateTime, and takes them back to the file system's precision.
///
/// A time counts as set where the file system has kept it within two seconds.
class TimesChange final : public Model::Change
{
public:
    /// @param steps  one or more, each of another date.
    explicit TimesChange(std::vector<TimeStep> steps) : m_steps(std::move(steps)) {}

    static constexpr std::string_view kind = "times";
    /// What the journal keeps; null for texts that are none of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t TakeBack(const CString& path) const override;

    [[nodiscard]] const std::vector<TimeStep>& Steps() const { return m_steps; }

private:
    std::vector<TimeStep> m_steps;
};

} // namespace VyrHost::Metadata
