#include "QtServices.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QStyle>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QWidget>

#include "Accessible.h"
#include "AppPath.h"
#include "FontSetup.h"
#include "Look.h"
#include "MsgBox.h"
#include "Translate.h"
#include "Twips.h"

namespace {
constexpr const char* TwipsProperty = "twips";
}

void Place(QWidget* control, TwipRect place)
{
    control->setProperty(TwipsProperty, QRect(place.left, place.top, place.width, place.height));
    control->setGeometry(TwipsToPixels(place.left), TwipsToPixels(place.top), TwipsToPixels(place.width),
                         TwipsToPixels(place.height));
}

TwipRect PlaceOf(const QWidget* control)
{
    const QVariant twips = control->property(TwipsProperty);
    if (!twips.isValid()) {
        const QRect pixels = control->geometry();
        return {PixelsToTwips(pixels.x()), PixelsToTwips(pixels.y()), PixelsToTwips(pixels.width()),
                PixelsToTwips(pixels.height())};
    }
    const QRect r = twips.toRect();
    return {r.x(), r.y(), r.width(), r.height()};
}

void AddToTop(QWidget* control, int twips)
{
    TwipRect place = PlaceOf(control);
    place.top += twips;
    Place(control, place);
}

void AddToHeight(QWidget* control, int twips)
{
    TwipRect place = PlaceOf(control);
    place.height += twips;
    Place(control, place);
}

int QtMsgBox(const std::string& text, int style, const std::string& title)
{
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(QString::fromStdString(title));
    QString body = QString::fromStdString(text);
    body.replace("\r\n", "\n");
    box.setText(body);
    switch (style & 0x70) {
    case vbCritical: box.setIcon(QMessageBox::Critical); break;
    case vbQuestion: box.setIcon(QMessageBox::Question); break;
    case vbExclamation: box.setIcon(QMessageBox::Warning); break;
    case vbInformation: box.setIcon(QMessageBox::Information); break;
    default: box.setIcon(QMessageBox::NoIcon); break;
    }
    if ((style & 7) == vbYesNo) {
        QPushButton* yes = box.addButton(QMessageBox::Yes);
        QPushButton* no = box.addButton(QMessageBox::No);
        box.setDefaultButton((style & vbDefaultButton2) ? no : yes);
        box.setEscapeButton(no);
        box.exec();
        return box.clickedButton() == yes ? vbYes : vbNo;
    }
    box.setDefaultButton(box.addButton(QMessageBox::Ok));
    box.exec();
    return vbOK;
}

namespace {
// Fusion, but the menu bar's overflow button gets no picture: loading it would load every image
// format plugin at start-up, for a button that the game's menu bar, wide enough, never shows.
class GameStyle : public QProxyStyle {
public:
    GameStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override
    {
        return icon == SP_ToolBarHorizontalExtensionButton ? QIcon() : QProxyStyle::standardIcon(icon, option, widget);
    }
};
}

void InstallQtServices(QApplication& app)
{
    SetAppPath(AppPathAsStarted(QCoreApplication::arguments().value(0).toStdString(),
                                QDir::currentPath().toStdString(),
                                QApplication::applicationDirPath().toStdString()));
    SetMsgBoxHandler(QtMsgBox);
    SetTranslator([](const char* context, const char* source) {
        return QCoreApplication::translate(context, source).toStdString();
    });
    InstallAccessibleFactory();
    app.setStyle(new GameStyle);
    QPalette palette = app.style()->standardPalette();
    palette.setColor(QPalette::Window, Look::ButtonFace);
    palette.setColor(QPalette::Button, Look::ButtonFace);
    app.setPalette(palette);
    ReadFontConfiguration();
    app.setFont(Look::DefaultFont());
}
