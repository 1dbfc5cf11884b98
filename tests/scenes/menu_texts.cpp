#include "scenes/menu_show.h"
#include "scenes/text_samples.h"

namespace scenes {

std::string PlainMenuText(Dice& dice) {
    constexpr MakeText kTexts[] = {LatinText, ChineseText, MixedText};
    return dice.Of(kTexts)(dice);
}

/// With a mnemonic somewhere, or what could be taken for one.
std::string MnemonicMenuText(Dice& dice) {
    constexpr const char* kMarks[] = {"&", "&", "&&", " && ", "& ", "&&&"};
    std::string text = PlainMenuText(dice);
    text += dice.Of(kMarks);
    text += PlainMenuText(dice);
    if (dice.OneIn(3)) text += "(&" + std::string(1, static_cast<char>(dice.Between('A', 'Z'))) + ")";
    return text;
}

/// What follows a tab stands in a column of its own, what follows a backspace ends before that.
std::string ShortcutMenuText(Dice& dice) {
    constexpr const char* kKeys[] = {"\tCtrl+C", "\tAlt+F4", "\t删除", "\bCtrl+&X",
                                     "\bF1",     "\tA\tB",   "\tA\bB", "\bC\tD"};
    std::string text = PlainMenuText(dice);
    if (!dice.OneIn(3)) text += dice.Of(kKeys);
    return text;
}

std::string LongMenuText(Dice& dice) {
    std::string text;
    for (int left = dice.Between(1, 12); left > 0; --left) text += MixedText(dice) + " and on ";
    return text;
}

std::string AnyMenuText(Dice& dice) {
    constexpr MakeText kTexts[] = {PlainMenuText, MnemonicMenuText, ShortcutMenuText};
    return dice.Of(kTexts)(dice);
}

}  // namespace scenes
