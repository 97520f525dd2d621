#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

/// Turns the event loop until `cumplido` says so, asleep between the events; it is asked some fifty times a
/// second.
template <class F>
void EsperarHasta(F cumplido, QEventLoop::ProcessEventsFlags eventos = QEventLoop::AllEvents) {
    constexpr int kLatidoMs = 20;
    QTimer latido;
    latido.start(kLatidoMs);
    while (!cumplido()) {
        QCoreApplication::processEvents(eventos | QEventLoop::WaitForMoreEvents);
    }
}
