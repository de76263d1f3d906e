#pragma once

#include "base/Numbers.h"
#include "base/Progress.h"
#include "view/FillBarLayout.h"
#include "view/PropertyBag.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

/// The members of the family: across with a plain colour, across with a picture, and upward from
/// the bottom with a picture.
enum class FillBarKind { H, PicH, PicV };

/// The fill's pictures begin here in the control's list of images.
inline constexpr std::int32_t kFirstFillPicture = 6;

/// What the window around a bar lends it until it is told otherwise.
struct Ambient {
    std::int32_t BackColor = 0;
    std::string Font;
};

/// The properties of the family. Colours have blue in their high byte; fonts and pictures are
/// names. The foot of the list is of some members only.
struct FillBarProperties {
    std::int32_t Value = 1; ///< 0 for PicV
    std::int32_t Min = 0;
    std::int32_t Max = 10;
    std::int32_t BackColor = 0; ///< the ambient one
    std::int32_t BorderStyle = 1;
    std::int32_t BorderColor = 255;
    std::string Font;               ///< of the text; the ambient one
    bool TextYesNO = false;         ///< shows Value as text
    std::int32_t TickAlignment = 2; ///< the side of the tick labels, see TickSide; 3 for PicV
    std::int32_t TickColor = 0xFFFFFF;
    std::int16_t TickFrequency = 1;      ///< ticks per range; 0 for PicV
    std::int32_t HeaderColor = 0xFF0000; ///< of the text
    std::int32_t FillColor = 3;          ///< an index, see FillPicture

    std::int32_t BackStyle = 1;    ///< H
    std::int32_t FillStyle = 0;    ///< H
    std::string Picture;           ///< PicH, PicV: in the background; none if empty
    bool RightToLeft = false;      ///< PicV
    std::int32_t MousePointer = 0; ///< PicV

    bool operator==(const FillBarProperties&) const = default;
};

/// Where tick labels stand across the bar, as TickAlignment 0 to 3 says it: above it (left of it
/// where it fills upward), below it (right of it), in its middle, or on both sides in turn.
enum class TickSide { Before, Behind, Middle, InTurn };

struct FillBarTick {
    double Place = 0.0;               ///< along the bar, from its start
    TickSide Side = TickSide::Middle; ///< never InTurn
    std::string Caption;
    bool operator==(const FillBarTick&) const = default;
};

/// What a screen draws of a bar. Lengths are in the scale of the control.
struct FillBarDrawing {
    std::int32_t Fill = 0;    ///< where the filled part ends, from the start: left, or bottom
    double PictureEdge = 0.0; ///< left edge of the fill as long as the bar; top edge for PicV
    double LayerEdge = 0.0;   ///< the same of the text's label, which begins where the fill ends
    bool FillVisible = false; ///< fill and label; not where Fill is 0
    bool Mirrored = false;    ///< left and right are exchanged, RightToLeft
    std::string Text;         ///< on the label
    std::vector<FillBarTick> Ticks;
    bool operator==(const FillBarDrawing&) const = default;
};

/// A bar that shows a value by the part of it that is filled, without a screen: setters change the
/// properties and, as each says, the drawing.
///
/// Order: a fresh bar has no length; Resize, then Value.
/// Announces: every property that a setter has changed or set anew, by its name, when it is done.
template <FillBarKind kind> class FillBar {
public:
    static constexpr bool kHasPicture = kind != FillBarKind::H;
    static constexpr bool kUpward = kind == FillBarKind::PicV;

    explicit FillBar(const Ambient& ambient = {});

    const FillBarProperties& Properties() const { return properties_; }
    const FillBarDrawing& Drawing() const { return drawing_; }

    /// Fills the bar and writes the text. The drawing stays as it was where there is no range (Max
    /// = Min) or the length leaves 32 bits; nothing is raised.
    void SetValue(std::int32_t value);
    /// Moves nothing: the fill follows at the next Value.
    void SetMin(std::int32_t value) { Set("Min", properties_.Min, value); }
    /// Moves nothing either, but the last tick label tells it.
    void SetMax(std::int32_t value);
    /// Lays the ticks out anew. Refused, without a word, while TickAlignment is 2.
    void SetTickFrequency(std::int16_t value);
    /// Lays the ticks out anew; outside 0 to 3 they stay on the side where they are.
    void SetTickAlignment(std::int32_t value);
    /// Lays the ticks out anew, then the value.
    void SetTextYesNO(bool value);
    /// Other measures. Lays the ticks out anew; the fill follows at the next Value.
    void Resize(const FillBarMeasure& measure);
    /// Takes over what long work has written. To be called when events are pumped.
    void Follow(const ProgressBar& work);

    // clang-format off
    void SetBackColor(std::int32_t value)       { Set("BackColor", properties_.BackColor, value); }
    void SetBorderStyle(std::int32_t value)     { Set("BorderStyle", properties_.BorderStyle, value); }
    void SetBorderColor(std::int32_t value)     { Set("BorderColor", properties_.BorderColor, value); }
    void SetFont(const std::string& value)      { Set("Font", properties_.Font, value); }
    void SetTickColor(std::int32_t value)       { Set("TickColor", properties_.TickColor, value); }
    void SetHeaderColor(std::int32_t value)     { Set("HeaderColor", properties_.HeaderColor, value); }
    void SetFillColor(std::int32_t value)       { Set("FillColor", properties_.FillColor, value); }
    void SetBackStyle(std::int32_t value)
        requires(!kHasPicture)                  { Set("BackStyle", properties_.BackStyle, value); }
    void SetFillStyle(std::int32_t value)
        requires(!kHasPicture)                  { Set("FillStyle", properties_.FillStyle, value); }
    void SetPicture(const std::string& value)
        requires kHasPicture                    { Set("Picture", properties_.Picture, value); }
    void SetMousePointer(std::int32_t value)
        requires kUpward                        { Set("MousePointer", properties_.MousePointer, value); }
    // clang-format on
    /// Lays the ticks out anew, left and right exchanged.
    void SetRightToLeft(bool value) requires kUpward
    {
        properties_.RightToLeft = value;
        LayTicks();
        Announce("RightToLeft");
    }

    /// The number of the fill's picture in the control's list of images. Error 6.
    std::int32_t FillPicture() const requires kHasPicture
    {
        return CLng(std::int64_t{properties_.FillColor} + kFirstFillPicture);
    }

    /// Every property of this member, under its name.
    void WriteProperties(PropertyBag& bag) const;
    /// Takes them back, those that are missing at their first values, and lays everything out anew.
    /// Errors 13 (a value of another type) and 6 (a TickFrequency beyond 16 bits), with all
    /// properties as they were. Announces nothing.
    void ReadProperties(const PropertyBag& bag);

    /// Tells the host under which name a property has been set.
    std::function<void(std::string_view)> PropertyChanged;

private:
    static FillBarProperties Defaults(const Ambient& ambient);
    template <class T> void Set(std::string_view name, T& property, const T& value)
    {
        property = value;
        Announce(name);
    }
    void Announce(std::string_view name) const;
    void ApplyValue();
    void WriteLastCaption();
    void LayTicks();

    Ambient ambient_;
    FillBarProperties properties_;
    FillBarMeasure measure_;
    TickSide side_;
    std::string last_caption_;
    FillBarDrawing drawing_;
};

using FillBarH = FillBar<FillBarKind::H>;
using FillBarPicH = FillBar<FillBarKind::PicH>;
using FillBarPicV = FillBar<FillBarKind::PicV>;

} // namespace lumora
