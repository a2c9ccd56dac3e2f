#pragma once

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <array>
#include <optional>

#include "desktop/tools/timing_target.h"
#include "desktop/windows/main_view.h"
#include "fields/modeline.h"

namespace wb::desktop {

/// Computes timings by the VESA Coordinated Video Timings Standard, shows them, and enters them into the detailed
/// timing whose panel is shown. No control stands behind it, so that the program's focus passes it by.
class TimingCalculator : public QDialog {
public:
    explicit TimingCalculator(MainView& frame);

    /// Begins with the size and rate of the timing shown.
    void takeShownTiming();
    /// Another timing may be shown, or editing be switched.
    void refresh();

private:
    enum Number { Active, Blanking, SyncOffset, PulseWidth, Total, Frequency, Polarity, numbers };

    void makeQuestion(QBoxLayout& column);
    void makeAnswer(QBoxLayout& column);
    void makeButtons(QBoxLayout& column);
    void compute();
    void showTiming();
    void showAxis(std::size_t row, const fields::ModelineAxis& axis, const QString& frequency);
    void enter();
    QString refusal() const;

    MainView& frame_;
    QSpinBox* width_;
    QSpinBox* height_;
    QDoubleSpinBox* rate_;
    QCheckBox* reduced_;
    QLabel* clock_;
    std::array<std::array<QLabel*, numbers>, 2> axes_{};
    QLineEdit* line_;
    QLabel* note_;
    QPushButton* enter_;
    QPushButton* copy_;
    std::optional<fields::Modeline> timing_;
    std::optional<TimingTarget> target_;
    QString complaint_; ///< why there is no timing, or why it does not fit the cells
    QString outcome_;   ///< of entering it
};

} // namespace wb::desktop
