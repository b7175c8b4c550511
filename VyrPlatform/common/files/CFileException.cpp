#include <VyrPlatform/files/CFileException.h>

#include <utility>

CFileException::CFileException(int cause, std::int32_t osError, CString fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(std::move(fileName))
{}

CFileException::CFileException(const CFileException&) = default;

CFileException& CFileException::operator=(const CFileException&) = default;

CFileException::~CFileException() = default;
