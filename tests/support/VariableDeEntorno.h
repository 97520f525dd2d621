#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Gives a variable of the environment a value while it lives; an empty one takes it away.
class VariableDeEntorno {
  public:
    VariableDeEntorno(const char* nombre, const QByteArray& valor)
        : m_nombre(nombre), m_anterior(qgetenv(nombre)) {
        Poner(valor);
    }
    ~VariableDeEntorno() { Poner(m_anterior); }
    VariableDeEntorno(const VariableDeEntorno&) = delete;
    VariableDeEntorno& operator=(const VariableDeEntorno&) = delete;

  private:
    void Poner(const QByteArray& valor) const {
        valor.isEmpty() ? qunsetenv(m_nombre) : qputenv(m_nombre, valor);
    }

    const char* m_nombre;
    QByteArray m_anterior;
};
