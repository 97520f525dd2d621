#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>
#include <functional>

// Attacks are many and short: a program that is started once does each in a child of its own.

/// Does one piece of work and gives what is to be told of it.
using Trabajo = std::function<QJsonObject(const QStringList& argumentos)>;

/// Takes lines of fields separated by tabs from the standard input until its end:
///   hacer ARGUMENTS... [VARIABLE=VALUE...]   the work, in a child with those variables and the fault library
///                                            armed anew
///   seguir                                   has the stopped child go on
/// Each is answered by a line: "parada" when the child has stopped itself, otherwise "fin", the exit status
/// (or minus the signal that ended it) and, unless it was ended, what was told, separated by tabs.
void Servir(const Trabajo& trabajo);

/// Calls that the fault library has counted in this process; 0 without it.
[[nodiscard]] long LlamadasContadas();
