#include "tests/corvalin/execution/CasoExecucao.h"

#include "corvalin/stations/Historico.h"
#include "halvo/sdk/CamadaAcesso.h"

namespace teste {

using corvalin::Posto;

Posto PostoPronto(std::int32_t codigo, const QString& nome, int anos) {
    Posto p;
    p.Codigo = codigo;
    p.Nome = nome;
    p.Area = 1000;
    p.AnoInicial = 1981;
    p.AnoFinal = p.AnoFinalHistorico = static_cast<std::int16_t>(1981 + anos - 1);
    p.AnoInicialPrev = p.AnoFinal + 1;
    const QString base = QStringLiteral("C%1.").arg(codigo);
    p.Arquivos.ArquivoDadosGerais = base + QStringLiteral("arq");
    p.Arquivos.ArquivoVazoesSemanais = base + QStringLiteral("dat");
    p.Arquivos.ArquivoRelatorio = base + QStringLiteral("rel");
    p.Arquivos.ArquivoPrevisoes = base + QStringLiteral("prv");
    p.Arquivos.ArquivoExcel = base + QStringLiteral("exc");
    p.Transformacao = p.MesInicial = 1;
    p.IntervaloConfianca = 95;
    p.SemanaInicialPrev = 1;
    return p;
}

void CasoExecucao::SetUp() {
    const QString pasta = QDir::toNativeSeparators(host.caminho(QStringLiteral("caso")));
    caso = std::make_shared<CasoTeste>(pasta);
    ASSERT_TRUE(bd->Criar(pasta));
    bd->Fechar();
    ASSERT_TRUE(bd->Abrir(*caso, true, true));
    postoBD.setCasoBD(bd);

    pastaPlugin = InstalaSolverDeTeste(host.caminho(QStringLiteral("modelos")));
}

void CasoExecucao::TearDown() {
    // The run leaves the current folder in the case; the test's folder is about to go.
    QDir::setCurrent(QDir::tempPath());
}

void CasoExecucao::grava(const Posto& posto) {
    Posto gravado = posto;
    ASSERT_TRUE(postoBD.setPosto(gravado));
    postoBD.setDadosGerais(gravado);
    corvalin::Historico vazoes(posto.AnoFinal - posto.AnoInicial + 1, posto.getNumSemanas());
    for (int ano = 1; ano <= vazoes.UBound1(); ++ano) {
        for (int semana = 1; semana <= vazoes.UBound2(); ++semana) {
            vazoes(ano, semana) = static_cast<float>(100 + semana + ano);
        }
    }
    postoBD.setHistorico(gravado, vazoes);
}

corvalin::AssistenteExecucao& CasoExecucao::assistente() {
    if (!mAssistente) {
        corvalin::ObjetosCaso objetos{std::make_shared<halvo::CamadaAcesso>(), bd, caso, notificador};
        mAssistente = std::make_unique<corvalin::AssistenteExecucao>(objetos, pastaPlugin, lista, registro);
    }
    return *mAssistente;
}

QStringList CasoExecucao::textosDoRegistro() const {
    QStringList textos;
    for (const auto& linha : registro.Linhas()) {
        textos << linha.texto;
    }
    return textos;
}

}  // namespace teste
