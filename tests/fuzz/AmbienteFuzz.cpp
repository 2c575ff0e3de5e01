#include "tests/fuzz/AmbienteFuzz.h"

#include "corvalin/casedb/casoBD.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/runtime/Vetor.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace fuzz {

using corvalin::Posto;

namespace {

const char* const TabelasDoPosto[] = {"Postos",         "DadosGerais",     "DadosGeraisComplemento",
                                      "VazoesSemanais", "VazoesPrevistas", "LimitesPrevisao"};

std::shared_ptr<corvalin::casoBD> pCaso(const QString& pasta) {
    auto bd = std::make_shared<corvalin::casoBD>();
    Ambiente::exige(bd->Criar(pasta), "the case is made");
    bd->Fechar();
    Ambiente::exige(bd->Abrir(teste::CasoTeste(pasta), true, true), "the case opens");
    return bd;
}

}  // namespace

Ambiente& Ambiente::instancia() {
    static Ambiente ambiente;
    return ambiente;
}

Posto Ambiente::SaoSimao() {
    Posto p;
    p.Codigo = 33;
    p.Nome = QStringLiteral("São Simão");
    p.AnoInicial = 1995;
    p.AnoFinal = 1995;
    p.Arquivos.ArquivoDadosGerais = QStringLiteral("SSIMAO.arq");
    p.MesInicial = 1;
    p.FlafVazpast = true;
    p.NomeArqVazpast = QStringLiteral("Vazpast.dat");
    p.FlagLimite = 1;
    p.NomeArqLimite = QStringLiteral("SSIMAO.lim");
    p.discretizacao = 2;
    p.Magnitude = 1;
    return p;
}

Ambiente::Ambiente() {
    const auto bd = pCaso(host.caminho(QStringLiteral("caso")));
    postoBD.setCasoBD(bd);
    opcoesBD.setCasoBD(bd);

    Posto posto = SaoSimao();
    corvalin::Historico vazoes(1, posto.getNumSemanas());
    plataforma::Vetor<float> seis(6);
    plataforma::Vetor<float> doze(12);
    for (int semana = 1; semana <= posto.getNumSemanas(); ++semana) {
        vazoes(1, semana) = 1000.f + semana;
    }
    for (int i = 1; i <= 12; ++i) {
        doze[i] = static_cast<float>(i);
        seis[(i + 1) / 2] = static_cast<float>(10 * i);
    }
    exige(postoBD.setPosto(posto), "the station is stored");
    postoBD.setHistorico(posto, vazoes);
    postoBD.setVazoesPrevistas(posto.Codigo, seis, seis, seis);
    postoBD.setLimitesPrevisao(posto.Codigo, posto.discretizacao, doze, doze);

    for (const char* nome : TabelasDoPosto) {
        const QString tabela = QString::fromLatin1(nome);
        QStringList campos;
        for (const auto& campo : bd->BancoDeDados().Fields(tabela)) {
            campos << campo.Name;
        }
        mTabelas.emplace_back(tabela, campos);
    }
    mRetrato = pRetrato();
}

QString Ambiente::arquivo(const QString& nome, const std::uint8_t* dados, std::size_t tamanho) const {
    const QString pasta = host.caminho(QStringLiteral("entrada"));
    QDir().mkpath(pasta);
    const QString caminho = pasta + QDir::separator() + nome;
    QFile f(caminho);
    exige(f.open(QIODevice::WriteOnly | QIODevice::Truncate), "the input file opens");
    exige(f.write(reinterpret_cast<const char*>(dados), static_cast<qint64>(tamanho)) ==
              static_cast<qint64>(tamanho),
          "the input file is written");
    return caminho;
}

bool Ambiente::executa(const std::function<bool()>& importa) {
    host.dialogo.limpa();
    recordstore::Transacao descartada(postoBD.BancoDeDados());
    const bool importou = importa();
    if (!importou) {
        exige(pRetrato() == mRetrato, "a failed import leaves the station tables as they were");
    }
    return importou;
}

void Ambiente::exige(bool condicao, const char* oque) {
    if (!condicao) {
        std::fprintf(stderr, "finding: it does not hold that %s\n", oque);
        std::abort();
    }
}

// Every field of every row of the station tables, in the tables' own order.
QString Ambiente::pRetrato() const {
    QString retrato;
    for (const auto& [nome, campos] : mTabelas) {
        const auto tabela = postoBD.BancoDeDados().OpenRecordset(nome);
        for (; !tabela->Eof(); tabela->MoveNext()) {
            for (const QString& campo : campos) {
                retrato += tabela->campo(campo).paraTexto() + u'|';
            }
            retrato += u'\n';
        }
    }
    return retrato;
}

}  // namespace fuzz
