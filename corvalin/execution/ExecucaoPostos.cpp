#include "corvalin/execution/ExecucaoPostos.h"

#include "corvalin/execution/ColheitaSaidas.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "corvalin/options/Opcoes.h"
#include "corvalin/options/OpcoesBD.h"
#include "corvalin/stations/Posto.h"
#include "corvalin/stations/PostoBD.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/Notificador.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "halvo/sdk/UtilitariosSistema.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/ArquivoTexto.h"
#include "platform/texto/Texto.h"

#include <QDir>
#include <QFile>

namespace corvalin {

namespace {

using namespace Constantes;

// What printing to a file that never opened raised: "bad file name or number".
constexpr std::int32_t ErroNumeroDeArquivo = 52;

// A control file of the solver: one line. A file that cannot be opened is not looked at before
// the print, which then fails and reaches the caller.
void pGravaControle(const QString& caminho, const QString& linha) {
    const auto saida = AbreArquivoGravacao(caminho);
    if (!saida) {
        throw plataforma::ErroVB::padrao(ErroNumeroDeArquivo);
    }
    saida->Print(linha);
    saida->Close();
}

// The batch file of the solver. The platform's shell runs it: /bin/sh would take a carriage
// return for part of the command and names files in the system's own encoding, so there the line
// ends as the shell's lines do.
void pGravaExecuta(const QString& caminho, const QString& linha) {
#ifdef Q_OS_WIN
    pGravaControle(caminho, linha);
#else
    QFile arquivo(caminho);
    if (!arquivo.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        arquivo.write(QFile::encodeName(linha) + '\n') < 0 || !arquivo.flush()) {
        throw plataforma::ErroVB::padrao(ErroNumeroDeArquivo);
    }
#endif
}

// The first line of a text file, empty when the file has none; the file must open.
QString pPrimeiraLinha(const QString& caminho) {
    texto::ArquivoEntrada entrada(caminho);
    try {
        return entrada.LineInput();
    } catch (const plataforma::ErroVB&) {
        return {};
    }
}

}  // namespace

ExecucaoPostos::ExecucaoPostos(halvo::caso& caso, PostoBD& postoBD, OpcoesBD& opcoesBD, RegistroTexto& registro,
                               QString pastaPlugin)
    : mCaso(caso), mPostoBD(postoBD), mOpcoesBD(opcoesBD), mRegistro(registro), mPastaPlugin(std::move(pastaPlugin)) {}

void ExecucaoPostos::pExecutar(const ListaPostos& lista, halvo::Notificador& notificador) {
    const PonteiroOcupado ponteiro;
    bool houveErro = false;
    mRegistro.Limpa();
    Opcoes opcoes;
    mOpcoesBD.getOpcoes(opcoes);
    for (int linha = 0; linha < lista.Quantidade(); ++linha) {
        if (lista.Marcada(linha) && !pExecutarPosto(lista.Texto(linha), opcoes)) {
            houveErro = true;
        }
    }
    notificador.Notifica(mCaso, houveErro ? halvo::EventoExecucaoComErro : halvo::EventoExecucaoSemErro);
}

bool ExecucaoPostos::pExecutarPosto(const QString& linha, const Opcoes& opcoes) {
    const halvo::UtilitariosArquivo arquivos;
    // A station that is gone runs all the same, as an empty record.
    Posto posto;
    mPostoBD.getPosto(posto, BuscaPorCodigo, CodigoDaLinha(linha), {});
    const QString pasta = PastaDoPosto(mCaso, posto.Codigo);

    // The solver's error file is looked for right behind the plug-in's folder text, with no
    // separator between them: that is where it has always been looked for.
    const QString erroSolver = mPastaPlugin + cteArquivoErroSolver;
    if (arquivos.ArquivoExiste(erroSolver)) {
        arquivos.CopiaArquivo(erroSolver, pasta + cteArquivoErroSolver, false);
    }

    const QString caso = pasta + cteArquivoCaso;
    pGravaControle(caso, posto.Arquivos.ArquivoDadosGerais);
    // The solver works in the current folder; there is no drive to change to besides it.
    QDir::setCurrent(arquivos.SeparaCaminho(caso, false));

    const QString executa = pasta + cteArquivoExecuta;
    const QString solver = arquivos.SeparaCaminho(mPastaPlugin + QDir::separator() + cteArquivoSolver, true);
    pGravaExecuta(executa, solver + texto::Left(cteArquivoSolver, cteArquivoSolver.size() - 4));

    const ColheitaSaidas colheita(mCaso, mPostoBD);
    colheita.TrazPrevisoes(posto, opcoes);
    halvo::Servicos::sistema().ExecutaPrograma(arquivos.SeparaCaminho(executa, true) + cteArquivoExecuta, 1, {}, 0,
                                               true);

    for (const QString& nome : {cteArquivoExecuta, cteArquivoPrevp, cteArquivoPrevt, cteArquivoErroSolver}) {
        arquivos.ApagaArquivo(pasta + nome);
    }
    pMostraAviso(pasta);
    colheita.Colhe(posto, opcoes);

    mRegistro.AdicionaLinha(Mensagens::msgPosto + u' ' + TextoDaLinha(posto), RegistroTexto::Aviso, true, true);
    const bool semErro =
        pExecutouSemErro(mCaso.Item(QStringLiteral("Diretorio")) + texto::Trim(texto::Str(posto.Codigo)));
    mRegistro.AdicionaLinha(semErro ? Mensagens::msgCasoExecutadoSucesso : Mensagens::msgCasoExecutadoErro,
                            RegistroTexto::Normal, false, true);
    mRegistro.AdicionaLinha(QStringLiteral(" "), RegistroTexto::Normal, false, true);
    return semErro;
}

// The solver's word to the user, before the station's log line: the next station waits for it.
void ExecucaoPostos::pMostraAviso(const QString& pasta) const {
    const halvo::UtilitariosArquivo arquivos;
    const QString aviso = pasta + cteArquivoAviso;
    if (!arquivos.ArquivoExiste(aviso)) {
        return;
    }
    QString linha;
    try {
        linha = pPrimeiraLinha(aviso);
    } catch (const plataforma::ErroVB&) {
    }
    if (!linha.isEmpty()) {
        halvo::Servicos::dialogo().Mensagem(linha, Mensagens::msgTituloInformacao, halvo::Icone::Informacao);
    }
    arquivos.ApagaArquivo(aviso);
}

bool ExecucaoPostos::pExecutouSemErro(const QString& pasta) {
    // The one place where the separator is a forward slash.
    try {
        const QString linha = pPrimeiraLinha(pasta + u'/' + cteArquivoRunstate);
        return texto::Val(texto::Trim(linha)) == 0;
    } catch (const plataforma::ErroVB&) {
        return false;
    }
}

}  // namespace corvalin
