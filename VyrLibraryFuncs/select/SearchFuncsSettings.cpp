// The getters and setters.
#include <VyrLibraryFuncs/select/SearchFuncs.h>

namespace VyrLibraryFuncs {

int SearchFuncs::GetSearchClosed()
{
    return m_searchClosed;
}

void SearchFuncs::SetSearchClosed(int closed)
{
    m_searchClosed = closed;
}

int SearchFuncs::GetDateTimeSearch()
{
    return m_dateTimeSearch;
}

void SearchFuncs::SetDateTimeSearch(int search)
{
    m_dateTimeSearch = search;
}

int SearchFuncs::GetDateTimeTarget()
{
    return m_dateTimeTarget;
}

void SearchFuncs::SetDateTimeTarget(int target)
{
    m_dateTimeTarget = target;
}

int SearchFuncs::GetDateTimeRange()
{
    return m_dateTimeRange;
}

void SearchFuncs::SetDateTimeRange(int range)
{
    m_dateTimeRange = range;
}

COleDateTime SearchFuncs::GetDateTimeFromDateTime()
{
    return m_dateTimeFromDateTime;
}

void SearchFuncs::SetDateTimeFromDateTime(COleDateTime from)
{
    m_dateTimeFromDateTime = from;
}

COleDateTime SearchFuncs::GetDateTimeToDateTime()
{
    return m_dateTimeToDateTime;
}

void SearchFuncs::SetDateTimeToDateTime(COleDateTime to)
{
    m_dateTimeToDateTime = to;
}

int SearchFuncs::GetSizeSearch()
{
    return m_sizeSearch;
}

void SearchFuncs::SetSizeSearch(int search)
{
    m_sizeSearch = search;
}

int SearchFuncs::GetSizeTarget()
{
    return m_sizeTarget;
}

void SearchFuncs::SetSizeTarget(int target)
{
    m_sizeTarget = target;
}

int SearchFuncs::GetSizeRange()
{
    return m_sizeRange;
}

void SearchFuncs::SetSizeRange(int range)
{
    m_sizeRange = range;
}

std::int64_t SearchFuncs::GetSizeFromSize()
{
    return m_sizeFromSize;
}

void SearchFuncs::SetSizeFromSize(std::int64_t from)
{
    m_sizeFromSize = from;
}

std::int64_t SearchFuncs::GetSizeToSize()
{
    return m_sizeToSize;
}

void SearchFuncs::SetSizeToSize(std::int64_t to)
{
    m_sizeToSize = to;
}

} // namespace VyrLibraryFuncs
