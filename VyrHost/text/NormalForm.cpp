// Compares texts piece by piece in their composed forms.
#include <VyrHost/text/NormalForm.h>

#include <VyrHostPlatform/NameFolding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>

namespace VyrHost::Text {

namespace {

/// The first combining mark. Texts without any from there on are composed, and no letter before it composes with
/// another.
constexpr char16_t firstAccent = 0x0300;

std::vector<CString> ComposedPieces(std::u16string_view text)
{
    std::vector<CString> composed;
    for (const std::u16string_view piece : CutForComposing(text))
        composed.push_back(Composed(piece));
    return composed;
}

template <class IsSame>
CString Replace(const CString& name, const CString& composedText, const CString& replacement, IsSame isSame)
{
    const std::vector<std::u16string_view> pieces = CutForComposing(name);
    const std::vector<CString> composed = ComposedPieces(name);
    const std::vector<CString> wanted = ComposedPieces(composedText);
    std::u16string result;
    for (std::size_t place = 0; place < pieces.size();) {
        const std::size_t left = composed.size() - place;
        const auto here = composed.begin() + static_cast<std::ptrdiff_t>(place);
        if (!wanted.empty() && wanted.size() <= left && std::equal(wanted.begin(), wanted.end(), here, isSame)) {
            result += replacement.View();
            place += wanted.size();
        } else {
            result += pieces[place++];
        }
    }
    return std::u16string_view(result);
}

} // namespace

CString Composed(const CString& text)
{
    return VyrHostPlatform::FoldName(text, VyrHostPlatform::NameFolding::Form);
}

bool IsComposed(const CString& text)
{
    const std::u16string_view units = text;
    return std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < firstAccent; }) ||
           Composed(text) == text;
}

std::vector<std::u16string_view> CutForComposing(std::u16string_view text)
{
    std::vector<std::u16string_view> pieces;
    std::size_t begin = 0;
    for (std::u16string_view rest = text; !rest.empty();) {
        const std::size_t place = text.size() - rest.size();
        const bool mayCompose = VyrPlatform::TakeCharacter(rest) >= firstAccent;
        if (place == begin)
            continue;
        const std::u16string_view before = text.substr(begin, place - begin);
        const std::u16string_view next = text.substr(place, text.size() - rest.size() - place);
        if (mayCompose && Composed(CString::Join({before, next})) != CString::Join({Composed(before), Composed(next)}))
            continue;
        pieces.push_back(before);
        begin = place;
    }
    if (begin < text.size())
        pieces.push_back(text.substr(begin));
    return pieces;
}

CString ReplaceComposed(const CString& name, const CString& composedText, const CString& replacement)
{
    return Replace(name, composedText, replacement, std::equal_to<CString>());
}

CString ReplaceComposedNoCase(const CString& name, const CString& composedText, const CString& replacement)
{
    return Replace(name, composedText, replacement,
                   [](const CString& left, const CString& right) { return left.CompareNoCase(right) == 0; });
}

} // namespace VyrHost::Text
