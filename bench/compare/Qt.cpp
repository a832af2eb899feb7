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
    palette.setColor(QPalette::Window, Color(fieldColor));
    palette.setColor(QPalette::WindowText, Color(textColor));
    label->setPalette(palette);
    label->setAutoFillBackground(true);
    QFont font(fontName);
    font.setPixelSize(fontPixels);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight);
    label->setGeometry(FieldLeft(field), FieldTop(field), fieldWidth, fieldHeight);
    return label;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.setGeometry(0, 0, screenWidth, screenHeight);
    QPalette palette;
    palette.setColor(QPalette::Window, Color(bodyColor));
    window.setPalette(palette);
    std::vector<QLabel*> labels;
    for (int field = 0; field < fieldCount; field++)
        labels.push_back(NewField(&window, field));
    window.show();

    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&labels] {
        const int tick = NextTick();
        for (int field = 0; field < fieldCount; field++)
            labels[static_cast<std::size_t>(field)]->setText(QString::fromStdString(FieldText(tick, field)));
    });
    timer.start(tickMilliseconds);
    return QApplication::exec();
}
