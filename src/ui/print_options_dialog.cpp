#include "print_options_dialog.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace quilmar {

namespace {

// A stored value as a check box state: 2 is the grayed state, which only a
// settings file can give; other values outside 0 and 1 show unchecked.
Qt::CheckState stateOf(int16_t value)
{
    switch (value) {
    case 1: return Qt::Checked;
    case 2: return Qt::PartiallyChecked;
    default: return Qt::Unchecked;
    }
}

int16_t valueOf(const QCheckBox *box)
{
    switch (box->checkState()) {
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
    default: return 0;
    }
}

} // namespace

PrintOptionsDialog::PrintOptionsDialog(const PrintOptions &options, std::function<void(const PrintOptions &)> accepted,
                                       QWidget *parent)
    : QDialog(parent), m_accepted(std::move(accepted))
{
    setObjectName("Printoptions");
    setWindowTitle("Print Options");
    setAttribute(Qt::WA_DeleteOnClose);

    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel("Print:", this);
    label->setObjectName("Label1");
    layout->addWidget(label);
    const char *captions[] = {"Reference Points", "Reference List", "Property Description", "Frame", "Balance Gap"};
    const int16_t values[] = {options.referencePoints, options.referenceList, options.propertyDescription,
                              options.frames, options.balanceGap};
    for (int i = 0; i < 5; ++i) {
        m_checks[i] = new QCheckBox(captions[i], this);
        m_checks[i]->setObjectName(QString("Printoptioncheck_%1").arg(i));
        m_checks[i]->setCheckState(stateOf(values[i]));
        if (values[i] == 2)
            m_checks[i]->setTristate(true);
        layout->addWidget(m_checks[i]);
    }
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    const char *buttonCaptions[] = {"&OK", "&Cancel"};
    for (int i = 0; i < 2; ++i) {
        auto *b = new QPushButton(buttonCaptions[i], this);
        b->setObjectName(QString("OKButton_%1").arg(i));
        connect(b, &QPushButton::clicked, this, [this, i] { OKButton_Click(i); });
        buttons->addWidget(b);
        if (i == 0)
            b->setDefault(true);
    }
    layout->addLayout(buttons);

    // Centred on the screen.
    adjustSize();
    if (const QScreen *screen = parent ? parent->screen() : QGuiApplication::primaryScreen()) {
        const QRect s = screen->availableGeometry();
        move(s.left() + (s.width() - width()) / 2, s.top() + (s.height() - height()) / 2);
    }
}

void PrintOptionsDialog::OKButton_Click(int index)
{
    if (index == 0 && m_accepted)
        m_accepted({valueOf(m_checks[0]), valueOf(m_checks[1]), valueOf(m_checks[2]), valueOf(m_checks[3]),
                    valueOf(m_checks[4])});
    close();
}

} // namespace quilmar
