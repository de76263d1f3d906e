#include "view/FillBar.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"

#include <type_traits>

namespace lumora {

namespace {

/// While it is this, a new TickFrequency is refused.
constexpr std::int32_t kFixedTicks = 2;

template <class T> T Held(const PropertyValue& value)
{
    if (!std::holds_alternative<T>(value)) Raise(ErrorNumber::TypeMismatch);
    return std::get<T>(value);
}

PropertyValue Kept(std::int16_t value)
{
    return std::int32_t{value};
}
template <class T> PropertyValue Kept(const T& value)
{
    return value;
}

/// The one list of what a bag holds, in its order: visit(name for writing, for reading, property).
template <FillBarKind kind, class Properties, class Visit>
void ForEachProperty(Properties& p, Visit visit)
{
    const auto same = [&](std::string_view name, auto& property) { visit(name, name, property); };
    same("FillColor", p.FillColor);
    same("BorderColor", p.BorderColor);
    same("BackColor", p.BackColor);
    same("Max", p.Max);
    same("Min", p.Min);
    same("Value", p.Value);
    // Files have it in the first spelling, and readers ask for the second.
    visit("TextYesNO", "TextYesNo", p.TextYesNO);
    same("Font", p.Font);
    same("TickAlignment", p.TickAlignment);
    same("TickColor", p.TickColor);
    same("TickFrequency", p.TickFrequency);
    same("HeaderColor", p.HeaderColor);
    if constexpr (FillBar<kind>::kHasPicture) same("Picture", p.Picture);
    same("BorderStyle", p.BorderStyle);
    if constexpr (!FillBar<kind>::kHasPicture) {
        same("BackStyle", p.BackStyle);
        same("FillStyle", p.FillStyle);
    }
    if constexpr (FillBar<kind>::kUpward) {
        same("RightToLeft", p.RightToLeft);
        same("MousePointer", p.MousePointer);
    }
}

TickSide SideOf(std::int32_t TickAlignment, TickSide otherwise)
{
    const bool is_side = TickAlignment >= 0 && TickAlignment <= 3;
    return is_side ? static_cast<TickSide>(TickAlignment) : otherwise;
}

TickSide Opposite(TickSide side)
{
    if (side == TickSide::Middle) return side;
    return side == TickSide::Before ? TickSide::Behind : TickSide::Before;
}

} // namespace

template <FillBarKind kind> FillBarProperties FillBar<kind>::Defaults(const Ambient& ambient)
{
    FillBarProperties fresh;
    fresh.BackColor = ambient.BackColor;
    fresh.Font = ambient.Font;
    if constexpr (kUpward) {
        fresh.Value = 0;
        fresh.TickAlignment = 3;
        fresh.TickFrequency = 0;
    }
    return fresh;
}

template <FillBarKind kind>
FillBar<kind>::FillBar(const Ambient& ambient)
    : ambient_(ambient),
      properties_(Defaults(ambient)),
      side_(SideOf(properties_.TickAlignment, TickSide::Middle))
{
}

template <FillBarKind kind> void FillBar<kind>::Announce(std::string_view name) const
{
    if (PropertyChanged) PropertyChanged(name);
}

template <FillBarKind kind> void FillBar<kind>::SetValue(std::int32_t value)
{
    properties_.Value = value;
    ApplyValue();
    Announce("Value");
}

template <FillBarKind kind> void FillBar<kind>::ApplyValue()
{
    const FillBarProperties& p = properties_;
    std::int32_t fill = 0;
    try {
        fill = FillLength(measure_, p.BorderStyle, p.Value, p.Min, p.Max);
    } catch (const RunTimeError&) {
        return; // errors are ignored here: long work may write Min and Max before it has a range
    }
    drawing_.Fill = fill;
    drawing_.PictureEdge = kUpward ? measure_.Full - fill : fill - measure_.Full;
    drawing_.LayerEdge = kUpward ? measure_.Full - fill : fill;
    drawing_.FillVisible = fill != 0;
    drawing_.Text = p.TextYesNO ? std::to_string(p.Value) : std::string();
}

template <FillBarKind kind> void FillBar<kind>::SetMax(std::int32_t value)
{
    properties_.Max = value;
    WriteLastCaption();
    Announce("Max");
}

template <FillBarKind kind> void FillBar<kind>::WriteLastCaption()
{
    last_caption_ = std::to_string(properties_.Max);
    if (!drawing_.Ticks.empty()) drawing_.Ticks.back().Caption = last_caption_;
}

template <FillBarKind kind> void FillBar<kind>::SetTickFrequency(std::int16_t value)
{
    if (properties_.TickAlignment == kFixedTicks) return;
    properties_.TickFrequency = value;
    LayTicks();
    Announce("TickFrequency");
}

template <FillBarKind kind> void FillBar<kind>::SetTickAlignment(std::int32_t value)
{
    properties_.TickAlignment = value;
    LayTicks();
    Announce("TickAlignment");
}

template <FillBarKind kind> void FillBar<kind>::SetTextYesNO(bool value)
{
    properties_.TextYesNO = value;
    LayTicks();
    ApplyValue();
    Announce("TextYesNO");
}

template <FillBarKind kind> void FillBar<kind>::Resize(const FillBarMeasure& measure)
{
    measure_ = measure;
    LayTicks();
}

template <FillBarKind kind> void FillBar<kind>::LayTicks()
{
    side_ = SideOf(properties_.TickAlignment, side_);
    drawing_.Mirrored = properties_.RightToLeft;
    drawing_.Ticks.clear();
    TickSide side = side_ == TickSide::InTurn ? TickSide::Before : side_;
    if (drawing_.Mirrored) side = Opposite(side);
    for (const double place :
         TickPlaces(measure_, properties_.BorderStyle, properties_.TickFrequency)) {
        drawing_.Ticks.push_back({place, side, {}});
        if (side_ == TickSide::InTurn) side = Opposite(side);
    }
    if (!drawing_.Ticks.empty()) drawing_.Ticks.back().Caption = last_caption_;
}

/// Value comes last, when the range that it is shown in is there.
template <FillBarKind kind> void FillBar<kind>::Follow(const ProgressBar& work)
{
    if (work.Min != properties_.Min) SetMin(work.Min);
    if (work.Max != properties_.Max) SetMax(work.Max);
    SetValue(work.Value);
}

template <FillBarKind kind> void FillBar<kind>::WriteProperties(PropertyBag& bag) const
{
    ForEachProperty<kind>(properties_, [&](std::string_view name, std::string_view, const auto& p) {
        bag.WriteProperty(name, Kept(p));
    });
}

template <FillBarKind kind> void FillBar<kind>::ReadProperties(const PropertyBag& bag)
{
    FillBarProperties read = Defaults(ambient_);
    ForEachProperty<kind>(read, [&](std::string_view, std::string_view name, auto& p) {
        using Property = std::remove_cvref_t<decltype(p)>;
        const PropertyValue kept = bag.ReadProperty(name, Kept(p));
        if constexpr (std::is_same_v<Property, std::int16_t>)
            p = CInt(Held<std::int32_t>(kept));
        else
            p = Held<Property>(kept);
    });
    properties_ = read;
    WriteLastCaption();
    LayTicks();
    ApplyValue();
}

template class FillBar<FillBarKind::H>;
template class FillBar<FillBarKind::PicH>;
template class FillBar<FillBarKind::PicV>;

} // namespace lumora
