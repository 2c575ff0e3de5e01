#include "tests/corvalin/frame/CasoDeTelas.h"

#include "halvo/sdk/CamadaAcesso.h"

namespace teste {

CasoDeTelas::CasoDeTelas(bool somenteLeitura)
    : caso(std::make_shared<CasoTeste>(host.caminho(QStringLiteral("caso")), somenteLeitura)),
      bd(std::make_shared<corvalin::casoBD>()),
      notificador(std::make_shared<halvo::NotificadorRegistro>()),
      camada(std::make_shared<halvo::CamadaAcesso>()),
      postoBD(std::make_unique<corvalin::PostoBD>()) {
    if (!bd->Criar(host.caminho(QStringLiteral("caso")))) {
        qFatal("the case could not be made");
    }
    bd->Fechar();
    if (!bd->Abrir(*caso, true, true)) {
        qFatal("the case could not be opened");
    }
    postoBD->setCasoBD(bd);
}

CasoDeTelas::~CasoDeTelas() {
    postoBD.reset();
    bd->Fechar();
}

corvalin::Posto CasoDeTelas::posto(int codigo, const QString& nome, int semanaInicialPrev,
                                   int anoInicialPrev) const {
    corvalin::Posto p;
    p.Codigo = codigo;
    p.Nome = nome;
    p.AnoInicial = 1980;
    p.AnoFinal = 2008;
    p.Transformacao = 1;
    p.MesInicial = 1;
    p.IntervaloConfianca = 95;
    p.SemanaInicialPrev = static_cast<std::int16_t>(semanaInicialPrev);
    p.AnoInicialPrev = static_cast<std::int16_t>(anoInicialPrev);
    const QString base = QString::number(codigo);
    p.Arquivos.ArquivoDadosGerais = base + QStringLiteral(".arq");
    p.Arquivos.ArquivoVazoesSemanais = base + QStringLiteral(".dat");
    p.Arquivos.ArquivoRelatorio = base + QStringLiteral(".rel");
    p.Arquivos.ArquivoPrevisoes = base + QStringLiteral(".prv");
    p.Arquivos.ArquivoExcel = base + QStringLiteral(".exc");
    return p;
}

corvalin::Posto CasoDeTelas::adiciona(int codigo, const QString& nome, int semanaInicialPrev,
                                      int anoInicialPrev) {
    corvalin::Posto p = posto(codigo, nome, semanaInicialPrev, anoInicialPrev);
    grava(p);
    return p;
}

void CasoDeTelas::grava(corvalin::Posto& p) {
    if (!postoBD->setPosto(p)) {
        qFatal("station %d refused", p.Codigo);
    }
}

void CasoDeTelas::historico(corvalin::Posto& p, int anoInicial, int anoFinal, int ultimaSemana) {
    p.AnoInicial = static_cast<std::int16_t>(anoInicial);
    p.AnoFinal = static_cast<std::int16_t>(anoFinal);
    grava(p);
    const int semanas = p.getNumSemanas();
    corvalin::Historico vazoes(anoFinal - anoInicial + 1, semanas);
    for (int ano = anoInicial; ano <= anoFinal; ++ano) {
        const int ate = ano == anoFinal ? ultimaSemana : semanas;
        for (int semana = 1; semana <= ate; ++semana) {
            vazoes(ano - anoInicial + 1, semana) = static_cast<float>(ano * 0.01 + semana);
        }
    }
    postoBD->setHistorico(p, vazoes);
}

void CasoDeTelas::previsao(int codigo, std::initializer_list<float> valores) {
    const int n = static_cast<int>(valores.size());
    plataforma::Vetor<float> previsto(n);
    plataforma::Vetor<float> inferior(n);
    plataforma::Vetor<float> superior(n);
    int i = 0;
    for (const float valor : valores) {
        ++i;
        previsto[i] = valor;
        inferior[i] = valor * 0.9F;
        superior[i] = valor * 1.1F;
    }
    postoBD->setVazoesPrevistas(codigo, previsto, inferior, superior);
}

}  // namespace teste
