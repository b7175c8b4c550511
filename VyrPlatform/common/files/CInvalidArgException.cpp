#include <VyrPlatform/files/CInvalidArgException.h>

CInvalidArgException::CInvalidArgException() = default;

CInvalidArgException::CInvalidArgException(const CInvalidArgException&) = default;

CInvalidArgException& CInvalidArgException::operator=(const CInvalidArgException&) = default;

CInvalidArgException::~CInvalidArgException() = default;
