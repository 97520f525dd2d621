#include "tests/ataque/Servicio.h"

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QJsonDocument>
#include <array>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

namespace {

/// No piece of work takes so long.
constexpr unsigned kSegundos = 90;

template <class F>
F* DeLaLibreria(const char* nombre) {
    return reinterpret_cast<F*>(dlsym(RTLD_DEFAULT, nombre));
}

/// Takes the variables out of the fields and sets them.
QStringList PonerVariables(const QStringList& campos) {
    QStringList argumentos;
    for (const QString& campo : campos) {
        const auto igual = campo.indexOf(u'=');
        if (campo.startsWith(QStringLiteral("ZELT_")) && igual > 0) {
            qputenv(campo.left(igual).toUtf8().constData(), campo.mid(igual + 1).toUtf8());
        } else {
            argumentos += campo;
        }
    }
    if (auto* armar = DeLaLibreria<void()>("zelt_fallo_armar")) {
        armar();
    }
    return argumentos;
}

/// A child at work, and the pipe through which it tells its result.
class Hijo {
  public:
    void Empezar(const Trabajo& trabajo, const QStringList& campos) {
        if (pipe(m_tubo.data()) != 0 || (m_pid = fork()) < 0) {
            std::perror("fork");
            std::abort();
        }
        if (m_pid == 0) {
            close(m_tubo[0]);
            Trabajar(trabajo, campos);
        }
        close(m_tubo[1]);
    }

    void Seguir() const { kill(m_pid, SIGCONT); }

    /// Waits until it stops or ends, and says so.
    void Esperar() const {
        int estado = 0;
        waitpid(m_pid, &estado, WUNTRACED);
        if (WIFSTOPPED(estado)) {
            std::puts("parada");
            return;
        }
        const int codigo = WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado);
        std::printf("fin\t%d\t%s\n", codigo, Resultado().constData());
    }

  private:
    [[noreturn]] void Trabajar(const Trabajo& trabajo, const QStringList& campos) const {
        alarm(kSegundos);
        const QByteArray dicho =
            QJsonDocument(trabajo(PonerVariables(campos))).toJson(QJsonDocument::Compact);
        const bool entero = write(m_tubo[1], dicho.constData(), static_cast<std::size_t>(dicho.size())) ==
                            static_cast<ssize_t>(dicho.size());
        _exit(entero ? 0 : 2);
    }

    [[nodiscard]] QByteArray Resultado() const {
        QByteArray resultado;
        std::array<char, 4096> trozo{};
        for (ssize_t leido = 0; (leido = read(m_tubo[0], trozo.data(), trozo.size())) > 0;) {
            resultado.append(trozo.data(), leido);
        }
        close(m_tubo[0]);
        return resultado;
    }

    pid_t m_pid = 0;
    std::array<int, 2> m_tubo{};
};

}  // namespace

void Servir(const Trabajo& trabajo) {
    Hijo hijo;
    for (std::string linea; std::getline(std::cin, linea);) {
        const QStringList campos = QString::fromStdString(linea).split(u'\t');
        if (campos.front() == u"hacer") {
            hijo.Empezar(trabajo, campos.mid(1));
        } else {
            hijo.Seguir();
        }
        hijo.Esperar();
        std::fflush(stdout);
    }
}

long LlamadasContadas() {
    auto* contadas = DeLaLibreria<long()>("zelt_fallo_contadas");
    return contadas == nullptr ? 0 : contadas();
}
