// An edit that gives a compound document new streams.
#pragma once

#include "DocumentFile.h"

#include <VyrPlatform/common/documents/CompoundProperties.h>

#include <utility>

namespace VyrPlatform {

/// Whether the open file is a compound document that both our reader and libgsf can read.
[[nodiscard]] bool IsCompoundDocument(int file);

/// Gives streams of the root storage new contents; each must exist.
class StreamsEdit : public DocumentEdit
{
public:
    explicit StreamsEdit(NewStreams streams) : m_streams(std::move(streams)) {}

    [[nodiscard]] int Write(int source, int target) override;
    [[nodiscard]] bool IsWritten(int source, int target) override;

private:
    NewStreams m_streams;
};

} // namespace VyrPlatform
