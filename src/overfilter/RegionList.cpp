#include "overfilter/RegionList.h"

namespace lumora {

OverRegion RegionList::At(std::size_t k, std::int64_t newest) const
{
    OverRegion region = rows_[k];
    if (open_ && k + 1 == rows_.size()) region.end = newest;
    return region;
}

std::int64_t RegionList::Span(std::int64_t newest) const
{
    return closed_span_ + (open_ ? newest - rows_.back().start : 0);
}

void RegionList::OpenAt(std::int64_t place, std::int16_t sign)
{
    rows_.push_back({place, place, sign});
    open_ = true;
}

void RegionList::CloseBefore(std::int64_t place)
{
    rows_.back().end = place - 1;
    closed_span_ += rows_.back().end - rows_.back().start;
    open_ = false;
}

void RegionList::RemoveFirst()
{
    if (FirstIsOpen())
        open_ = false;
    else
        closed_span_ -= rows_.front().end - rows_.front().start;
    rows_.pop_front();
}

} // namespace lumora
