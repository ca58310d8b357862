#pragma once
// The dialog `Printoptions` ("Print Options"): five check boxes for what the
// map printout adds to the map (reference points, reference list, property
// description, frame, balanced gap) and "&OK" / "&Cancel". It is built afresh
// each time it is shown, so it always starts from the current options; only
// "&OK" hands the boxes back. Nothing is written to the settings file.

#include <array>
#include <functional>

#include <QDialog>

#include "engine.h"

class QCheckBox;

namespace quilmar {

class PrintOptionsDialog : public QDialog {
    Q_OBJECT
public:
    /// @param accepted  receives the boxes' values on "&OK"
    PrintOptionsDialog(const PrintOptions &options, std::function<void(const PrintOptions &)> accepted,
                       QWidget *parent = nullptr);

    /// `Printoptioncheck`(0..4) in the order above.
    QCheckBox *check(int index) const { return m_checks[index]; }
    /// "&OK" (0) or "&Cancel" (1), as the buttons `OKButton`(0..1) do.
    void OKButton_Click(int index);

private:
    std::array<QCheckBox *, 5> m_checks{};
    std::function<void(const PrintOptions &)> m_accepted;
};

} // namespace quilmar
