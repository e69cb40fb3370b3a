#include "quick_backend/VqMenuLabel.h"

#include "AbstractGui/CVqAbstractMenu.h"

#include <vector>

namespace {

constexpr vq_wchar Bel[] = {7, 0};

QString ToQString(const vq_wchar* text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text), VqLength(text));
}

// Takes the marks out of `marked`, in which at most those of one character and doubled ones are left.
SVqMenuLabel WithoutMarks(QStringView marked)
{
    SVqMenuLabel label;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        if (marked[i] != u'&') {
            label.text += marked[i];
        } else if (i + 1 < marked.size() && marked[i + 1] == u'&') {
            label.text += marked[++i];
        } else if (label.mnemonic < 0 && i + 1 < marked.size()) {
            label.mnemonic = int(label.text.size());
        }
    }
    return label;
}

}

SVqMenuLabel VqMenuLabel(const vq_wchar* text, vq_wchar mnemonic)
{
    std::vector<vq_wchar> area(std::size_t(VqLength(text)) + 1);
    CVqAbstractMenu::SVqManipulators::Instance().handle_mnemonics_and_split(
        area.data(), text ? text : VQ_TEXT(""), mnemonic, Bel);

    const QString whole = ToQString(area.data());
    const qsizetype tab = whole.indexOf(u'\t');
    SVqMenuLabel label = WithoutMarks(QStringView(whole).left(tab < 0 ? whole.size() : tab));
    if (tab >= 0)
        label.note = WithoutMarks(QStringView(whole).mid(tab + 1)).text.trimmed();
    if (label.mnemonic >= label.text.size())
        label.mnemonic = -1;
    return label;
}

QString SVqMenuLabel::Styled() const
{
    if (mnemonic < 0)
        return text.toHtmlEscaped();
    return text.left(mnemonic).toHtmlEscaped() + QStringLiteral("<u>") + text.mid(mnemonic, 1).toHtmlEscaped()
        + QStringLiteral("</u>") + text.mid(mnemonic + 1).toHtmlEscaped();
}
