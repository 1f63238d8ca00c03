#pragma once

#include <QApplication>
#include <QTimer>
#include <QTranslator>

namespace torvenhall
{

/// The toolkit's application, set up as this game wants it on every desktop.
class Application : public QApplication
{
public:
    /// What must be said before the toolkit starts.
    static void Prepare();
    Application(int& argc, char** argv);

    /// The last net: an exception that reaches the event loop is reported and
    /// the game goes on, where the toolkit would abort.
    bool notify(QObject* receiver, QEvent* event) override;

    /// From now on the life in hand is kept, once a minute and when the desktop
    /// or the system ends the program.
    void KeepLives();

protected:
    /// At a logout nobody is asked anything.
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTranslator words;
    QTimer keeping;
    bool sessionEnds = false;
};

} // namespace torvenhall
