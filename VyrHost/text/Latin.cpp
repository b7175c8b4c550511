// The letters of Latin script by their spelling in ASCII.
#include <VyrHost/text/Latin.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace VyrHost::Text {

namespace {

struct Spelling
{
    std::u16string_view ascii;
    /// Each is one code unit.
    std::u16string_view letters;
};

constexpr Spelling spellings[] = {
    {u"A", u"ÀÁÂÃÄÅĀĂĄǍǞǠǺȀȂȦȺᴬḀẠẢẤẦẨẪẬẮẰẲẴẶÅＡ"},
    {u"a", u"ªàáâãäåāăąǎǟǡǻȁȃȧᵃᶏḁạảấầẩẫậắằẳẵặₐⱥａ"},
    {u"B", u"ƁƂɃᴮḂḄḆꞖＢ"},
    {u"b", u"ƀƃɓᵇᵬᶀḃḅḇꞗｂ"},
    {u"C", u"ÇĆĈĊČƇȻḈⅭꞒꟄꟲＣ"},
    {u"c", u"çćĉċčƈȼɕᶜḉⅽꞓꞔｃ"},
    {u"D", u"ÐĎĐƊƋᴰḊḌḎḐḒⅮＤ"},
    {u"d", u"ðďđƌȡɖɗᵈᵭᶁḋḍḏḑḓⅾｄ"},
    {u"E", u"ÈÉÊËĒĔĖĘĚƏƐȄȆȨɆᴱḔḖḘḚḜẸẺẼẾỀỂỄỆＥ"},
    {u"e", u"èéêëēĕėęěȅȇȩɇəɛᵉᶒḕḗḙḛḝẹẻẽếềểễệₑₔⱸꬴｅ"},
    {u"F", u"ƑḞꞘꟳＦ"},
    {u"f", u"ƒᵮᶂᶠḟꞙｆ"},
    {u"G", u"ĜĞĠĢƓǤǦǴᴳḠꞠＧ"},
    {u"g", u"ĝğġģǥǧǵɠᵍᶃḡꞡｇ"},
    {u"H", u"ĤĦȞᴴḢḤḦḨḪⱧꞪＨ"},
    {u"h", u"ĥħȟɦʰḣḥḧḩḫẖₕⱨꞕｈ"},
    {u"I", u"ÌÍÎÏĨĪĬĮİƗǏȈȊᴵḬḮỈỊⅠＩ"},
    {u"i", u"ìíîïĩīĭįıǐȉȋɨᵢᶖḭḯỉịⅰｉ"},
    {u"J", u"ĴɈᴶꞲＪ"},
    {u"j", u"ĵǰɉɟʝʲⱼｊ"},
    {u"K", u"ĶƘǨᴷḰḲḴKⱩꝀꝂꝄꞢＫ"},
    {u"k", u"ķĸƙǩᵏᶄḱḳḵₖⱪꝁꝃꝅꞣｋ"},
    {u"L", u"ĹĻĽŁȽᴸḶḸḺḼⅬⱠⱢꝈꞭＬ"},
    {u"l", u"ĺļľłƚȴɫɬɭˡᶅḷḹḻḽₗⅼⱡꝉꬷꬸｌ"},
    {u"M", u"ᴹḾṀṂⅯⱮＭ"},
    {u"m", u"ɱᵐᵯᶆḿṁṃₘⅿꬺｍ"},
    {u"N", u"ÑŃŅŇƝǸᴺṄṆṈṊꞐꞤＮ"},
    {u"n", u"ñńņňǹȵɲɳᵰᶇṅṇṉṋₙꞑꞥꬻｎ"},
    {u"O", u"ÒÓÔÕÖØŌŎŐƆƟƠǑǪǬǾȌȎȪȬȮȰᴼṌṎṐṒỌỎỐỒỔỖỘỚỜỞỠỢꝊꝌＯ"},
    {u"o", u"ºòóôõöøōŏőơǒǫǭǿȍȏȫȭȯȱɔᵒṍṏṑṓọỏốồổỗộớờởỡợₒꝋꝍｏ"},
    {u"P", u"ƤᴾṔṖⱣꝐꝒꝔＰ"},
    {u"p", u"ƥᵖᵱᵽᶈṕṗₚꝑꝓꝕｐ"},
    {u"Q", u"ꝖꝘꟴＱ"},
    {u"q", u"ɋʠꝗꝙｑ"},
    {u"R", u"ŔŖŘȐȒɌᴿṘṚṜṞⱤꞦＲ"},
    {u"r", u"ŕŗřȑȓɍɼɽɾʳᵣᵲᶉṙṛṝṟꞧꭉｒ"},
    {u"S", u"ŚŜŞŠȘṠṢṤṦṨⱾꞨꟅＳ"},
    {u"s", u"śŝşšſșȿʂˢᵴᶊṡṣṥṧṩẛₛꞩｓ"},
    {u"T", u"ŢŤŦƬƮȚȾᵀṪṬṮṰＴ"},
    {u"t", u"ţťŧƫƭțȶʈᵗᵵṫṭṯṱẗₜⱦｔ"},
    {u"U", u"ÙÚÛÜŨŪŬŮŰŲƯǓǕǗǙǛȔȖᵁṲṴṶṸṺỤỦỨỪỬỮỰꞸＵ"},
    {u"u", u"ùúûüũūŭůűųưǔǖǘǚǜȕȗᵘᵤᶙṳṵṷṹṻụủứừửữựꞹꭒｕ"},
    {u"V", u"ƲṼṾⅤⱽꝞＶ"},
    {u"v", u"ʋᵛᵥᶌṽṿⅴⱱⱴꝟｖ"},
    {u"W", u"ŴǷᵂẀẂẄẆẈⱲＷ"},
    {u"w", u"ŵƿʷẁẃẅẇẉẘⱳｗ"},
    {u"X", u"ẊẌⅩＸ"},
    {u"x", u"ˣᶍẋẍₓⅹｘ"},
    {u"Y", u"ÝŶŸƳȜȲɎẎỲỴỶỸỾＹ"},
    {u"y", u"ýÿŷƴȝȳɏʸẏẙỳỵỷỹỿｙ"},
    {u"Z", u"ŹŻŽƵƷǮȤẐẒẔⱫⱿꟆＺ"},
    {u"z", u"źżžƶǯȥɀʐʑʒᵶᶎᶻẑẓẕⱬｚ"},
    {u"'n", u"ŉ"},
    {u"AA", u"Ꜳ"},
    {u"aa", u"ꜳ"},
    {u"AE", u"ÆǢǼ"},
    {u"ae", u"æǣǽ"},
    {u"AO", u"Ꜵ"},
    {u"ao", u"ꜵ"},
    {u"AU", u"Ꜷ"},
    {u"au", u"ꜷ"},
    {u"AV", u"Ꜹ"},
    {u"av", u"ꜹ"},
    {u"AY", u"Ꜽ"},
    {u"ay", u"ꜽ"},
    {u"DZ", u"ǄǱ"},
    {u"Dz", u"ǅǲ"},
    {u"dz", u"ǆǳ"},
    {u"ff", u"ﬀ"},
    {u"ffi", u"ﬃ"},
    {u"ffl", u"ﬄ"},
    {u"fi", u"ﬁ"},
    {u"fl", u"ﬂ"},
    {u"II", u"Ⅱ"},
    {u"ii", u"ⅱ"},
    {u"III", u"Ⅲ"},
    {u"iii", u"ⅲ"},
    {u"IJ", u"Ĳ"},
    {u"ij", u"ĳ"},
    {u"IV", u"Ⅳ"},
    {u"iv", u"ⅳ"},
    {u"IX", u"Ⅸ"},
    {u"ix", u"ⅸ"},
    {u"LJ", u"Ǉ"},
    {u"Lj", u"ǈ"},
    {u"lj", u"ǉ"},
    {u"LL", u"Ỻ"},
    {u"ll", u"ỻ"},
    {u"Ng", u"Ŋ"},
    {u"ng", u"ŋ"},
    {u"NJ", u"Ǌ"},
    {u"Nj", u"ǋ"},
    {u"nj", u"ǌ"},
    {u"OE", u"Œ"},
    {u"oe", u"œ"},
    {u"OO", u"Ꝏ"},
    {u"oo", u"ꝏ"},
    {u"OU", u"Ȣ"},
    {u"ou", u"ȣ"},
    {u"SS", u"ẞ"},
    {u"ss", u"ß"},
    {u"st", u"ﬅﬆ"},
    {u"Th", u"Þ"},
    {u"th", u"þ"},
    {u"VI", u"Ⅵ"},
    {u"vi", u"ⅵ"},
    {u"VII", u"Ⅶ"},
    {u"vii", u"ⅶ"},
    {u"VIII", u"Ⅷ"},
    {u"viii", u"ⅷ"},
    {u"VY", u"Ꝡ"},
    {u"vy", u"ꝡ"},
    {u"XI", u"Ⅺ"},
    {u"xi", u"ⅺ"},
    {u"XII", u"Ⅻ"},
    {u"xii", u"ⅻ"},
};

const std::unordered_map<char16_t, std::u16string_view>& Spellings()
{
    static const auto table = [] {
        std::unordered_map<char16_t, std::u16string_view> made;
        for (const Spelling& spelling : spellings)
            for (const char16_t letter : spelling.letters)
                made.emplace(letter, spelling.ascii);
        return made;
    }();
    return table;
}

bool IsAsciiLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// The blocks of combining marks for letters of several scripts.
bool IsCombiningMark(char16_t unit)
{
    return (unit >= 0x0300 && unit <= 0x036F) || (unit >= 0x1AB0 && unit <= 0x1AFF) ||
           (unit >= 0x1DC0 && unit <= 0x1DFF) || (unit >= 0x20D0 && unit <= 0x20FF) ||
           (unit >= 0xFE20 && unit <= 0xFE2F);
}

} // namespace

CString SpellOutLatin(const CString& text)
{
    constexpr char16_t firstOther = 0x80;
    const std::u16string_view units = text;
    if (std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < firstOther; }))
        return text;
    std::u16string result;
    bool isBehindLatin = false;
    for (const char16_t unit : units) {
        if (isBehindLatin && IsCombiningMark(unit))
            continue;
        const auto known = unit < firstOther ? Spellings().end() : Spellings().find(unit);
        if (known != Spellings().end())
            result += known->second;
        else
            result += unit;
        isBehindLatin = known != Spellings().end() || IsAsciiLetter(unit);
    }
    return std::u16string_view(result);
}

} // namespace VyrHost::Text
