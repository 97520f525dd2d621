#pragma once

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>

/// Prints "name nanoseconds" of the monotonic clock the first time that a widget of that name is painted,
/// then runs `despues` from the event loop.
class AlPintar : public QObject {
  public:
    AlPintar(QString nombre, std::function<void()> despues)
        : m_nombre(std::move(nombre)), m_despues(std::move(despues)) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (!m_visto && evento->type() == QEvent::Paint && objeto->objectName() == m_nombre) {
            m_visto = true;
            QTimer::singleShot(0, this, [this] {
                const auto ahora = std::chrono::steady_clock::now().time_since_epoch();
                std::printf("%s %lld\n", qPrintable(m_nombre),
                            static_cast<long long>(std::chrono::nanoseconds(ahora).count()));
                if (m_despues) {
                    m_despues();
                }
            });
        }
        return false;
    }

  private:
    QString m_nombre;
    std::function<void()> m_despues;
    bool m_visto = false;
};

/// Prints the peak of the resident memory in KiB, and ends the process.
inline void TerminarConMemoria() {
    QFile estado(QStringLiteral("/proc/self/status"));
    if (estado.open(QIODevice::ReadOnly)) {
        for (const QByteArray& linea : estado.readAll().split('\n')) {
            if (linea.startsWith("VmHWM:")) {
                std::printf("memoria %s\n", linea.mid(6).trimmed().split(' ').first().constData());
            }
        }
    }
    std::fflush(stdout);
    std::quick_exit(0);
}
