#include "tests/doubles/HostTeste.h"

#include <QDir>
#include <QFileInfo>

namespace teste {

CasoTeste::CasoTeste(const QString& diretorio, bool somenteLeitura) : mSomenteLeitura(somenteLeitura) {
    const QString comSeparador = diretorio.isEmpty() || diretorio.endsWith(QDir::separator())
                                     ? diretorio
                                     : diretorio + QDir::separator();
    mItens = {{QStringLiteral("Diretorio"), comSeparador}, {QStringLiteral("diretorio"), comSeparador},
              {QStringLiteral("Codigo"), QStringLiteral("7")},  {QStringLiteral("codigo"), QStringLiteral("7")},
              {QStringLiteral("estudo"), QStringLiteral("Estudo")}, {QStringLiteral("nome"), QStringLiteral("Caso")},
              {QStringLiteral("Nome"), QStringLiteral("Caso")},   {QStringLiteral("Descricao"), QStringLiteral("Teste")},
              {QStringLiteral("DataCriacao"), QStringLiteral("2026-11-22")},
              {QStringLiteral("HoraCriacao"), QStringLiteral("10:30:00")}};
}

void SistemaGravador::ExecutaPrograma(const QString& arquivo, std::int16_t, const QString&, std::int32_t, bool) {
    Programas.push_back(arquivo);
    PastasCorrentes.push_back(QDir::currentPath());
    halvo::ExecutaNoShell(arquivo);
}

QString ServicosHalvoGravador::CaminhoParaApagar(const QString& referencia) { return CaminhoCompleto(referencia); }

QString ServicosHalvoGravador::CaminhoCompleto(const QString& referencia) {
    return QFileInfo(referencia).absoluteFilePath();
}

HostTeste::HostTeste() : mInstalacao(&dialogo, &sistema, &halvo) {}

}  // namespace teste
