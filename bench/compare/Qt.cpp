// The fields in Qt widgets: labels at fixed places.
#include "bench/compare/Fields.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <vector>

namespace
{

QColor Color(Rgb color)
{
    return {color.red, color.green, color.blue};
}

QLabel* NewField(QWidget* window, int field)
{
    auto* label = new QLabel(QString::fromStdString(FieldText(0, field)), window);
    QPalette palette;
    palette.setColor(QPalette::Window, Color(FIELD_COLOR));
    palette.setColor(QPalette::WindowText, Color(TEXT_COLOR));
    label->setPalette(palette);
    label->setAutoFillBackground(true);
    QFont font(FONT_NAME);
    font.setPixelSize(FONT_PIXELS);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight);
    label->setGeometry(FieldLeft(field), FieldTop(field), FIELD_WIDTH, FIELD_HEIGHT);
    return label;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.setGeometry(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
    QPalette palette;
    palette.setColor(QPalette::Window, Color(BODY_COLOR));
    window.setPalette(palette);
    std::vector<QLabel*> labels;
    for (int field = 0; field < FIELD_COUNT; field++)
        labels.push_back(NewField(&window, field));
    window.show();

    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&labels] {
        const int tick = NextTick();
        if (IsQuiet() && tick > 1)
            return;
        for (int field = 0; field < FIELD_COUNT; field++)
            labels[static_cast<std::size_t>(field)]->setText(QString::fromStdString(FieldText(tick, field)));
    });
    timer.start(TICK_MILLISECONDS);
    return QApplication::exec();
}
