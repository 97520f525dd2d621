#pragma once

#include <pwd.h>
#include <unistd.h>

#include <QStringList>

/// For its life this process has no more rights than any user, also where root runs the tests: whom no
/// permission stops.
class SinPrivilegios {
  public:
    /// `suyos` are the files and folders that this user owns from now on.
    explicit SinPrivilegios(const QStringList& suyos) {
        if (m_antes == 0) {
            const passwd* nadie = getpwnam("nobody");
            for (const QString& ruta : suyos) {
                if (chown(qUtf8Printable(ruta), nadie->pw_uid, nadie->pw_gid) != 0) {
                    qFatal("chown");
                }
            }
            Ser(nadie->pw_uid);
        }
    }
    ~SinPrivilegios() {
        if (m_antes == 0) {
            Ser(m_antes);
        }
    }
    SinPrivilegios(const SinPrivilegios&) = delete;
    SinPrivilegios& operator=(const SinPrivilegios&) = delete;

  private:
    static void Ser(uid_t quien) {
        if (seteuid(quien) != 0) {
            qFatal("seteuid");
        }
    }

    uid_t m_antes = geteuid();
};
