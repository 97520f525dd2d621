#pragma once

#include <QMutex>
#include <QObject>
#include <QSet>
#include <map>
#include <string>

// What the toolkit calls whenever an object of its comes to be or goes: for debuggers and the like. Entries 3
// and 4 are pointers to the functions that it calls.
extern Q_DECL_IMPORT quintptr qtHookData[];

/// Counts the toolkit's objects that come to be during its life, in whatever thread. There is one at a time.
class ObjetosVivos {
  public:
    ObjetosVivos() {
        Unico() = this;
        qtHookData[kAlNacer] = reinterpret_cast<quintptr>(+[](QObject* objeto) { Unico()->Anadir(objeto); });
        qtHookData[kAlMorir] = reinterpret_cast<quintptr>(+[](QObject* objeto) { Unico()->Quitar(objeto); });
    }
    ~ObjetosVivos() { qtHookData[kAlNacer] = qtHookData[kAlMorir] = 0; }
    ObjetosVivos(const ObjetosVivos&) = delete;
    ObjetosVivos& operator=(const ObjetosVivos&) = delete;

    /// How many of each class there are.
    [[nodiscard]] std::map<std::string, int> PorClase() {
        const QMutexLocker cierre(&m_cierre);
        std::map<std::string, int> cuenta;
        for (const QObject* objeto : std::as_const(m_objetos)) {
            ++cuenta[objeto->metaObject()->className()];
        }
        return cuenta;
    }

  private:
    static constexpr int kAlNacer = 3;
    static constexpr int kAlMorir = 4;

    static ObjetosVivos*& Unico() {
        static ObjetosVivos* unico = nullptr;
        return unico;
    }
    void Anadir(QObject* objeto) {
        const QMutexLocker cierre(&m_cierre);
        m_objetos.insert(objeto);
    }
    void Quitar(QObject* objeto) {
        const QMutexLocker cierre(&m_cierre);
        m_objetos.remove(objeto);
    }

    QMutex m_cierre;
    QSet<QObject*> m_objetos;
};
