/// @file
/// The files that changes keep beside the journal of their batch.
#pragma once

#include <VyrHost/batch/JournalFolder.h>

#include <cstdint>

namespace VyrHost::Batch {

/// Tells each change of `journal` where it may keep a file: in the folder NUMBER.kept beside the journal `file`.
void GiveKeptPlaces(Journal& journal, const JournalFile& file);

/// Removes the files that the batch `number` kept in the journals' folder `path`, if any.
void RemoveKept(FileOperations& files, const CString& path, std::uint32_t number);

/// Removes the kept files of batches whose journals are gone.
void RemoveOrphans(FileOperations& files, const CString& path);

} // namespace VyrHost::Batch
