#include "corvalin/options/Opcoes.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/runtime/ErroVB.h"
#include "tests/corvalin/modelfiles/CasoModelo.h"

#include <algorithm>
#include <tuple>

namespace {

using namespace Qt::StringLiterals;
using corvalin::Historico;
using corvalin::Posto;

// A data line as the writer lays it out: the fields (value and point) right-aligned in 7 columns,
// one blank before each, and the year in columns 77 to 80.
QString linhaDeDados(const QStringList& campos, const QString& ano) {
    QString linha;
    for (const QString& campo : campos) {
        linha += u' ' + campo.rightJustified(7);
    }
    return linha.leftJustified(76) + ano.rightJustified(4);
}

// A full year of 52 weeks, every value 100 plus its week.
QStringList anoCompleto(int ano) {
    QStringList linhas;
    for (int j = 0; j < 6; ++j) {
        QStringList campos;
        for (int k = 1; k <= (j < 5 ? 9 : 7); ++k) {
            campos << QString::number(100 + j * 9 + k) + u'.';
        }
        linhas << linhaDeDados(campos, QString::number(ano));
    }
    return linhas;
}

Posto de53Semanas() {
    Posto p;
    p.Arquivos.CasoUsa53Semanas = 1;
    return p;
}

class VazoesSemanaisTeste : public teste::CasoModelo {
protected:
    bool importa(const QString& caminho, Posto& posto, bool semNomesPadrao = true, bool soCabecalho = false) {
        return arq.importaVazoesSemanais(caminho, erros, progresso, posto, postoBD, opcoesBD, semNomesPadrao,
                                         soCabecalho);
    }
    // A weekly flows file of station 33 "Jupiá" with the given period line and data lines.
    QString doPosto(const QString& periodo, const QStringList& dados,
                    const QString& identificacao = u"      33 Jupiá"_s) {
        return arquivo(u"JUPIA.dat"_s, linhas(QStringList{identificacao, periodo} + dados));
    }
    // Writes the station's history and answers the file.
    QString escrito(const Posto& posto) {
        EXPECT_TRUE(arq.geraVazoesSemanais(pastaExecucao(), posto, postoBD, progresso));
        return gerado(posto.Codigo, posto.Arquivos.ArquivoVazoesSemanais);
    }
    int gravadas() const {
        return caso.linhas(u"Postos"_s) + caso.linhas(u"VazoesSemanais"_s) + caso.linhas(u"DadosGerais"_s);
    }
};

TEST_F(VazoesSemanaisTeste, GeraOsArquivosDouradosComAcentosE53Semanas) {
    for (const auto& [posto, vazoes, dourado] :
         {std::tuple{teste::SaoSimao(), teste::HistoricoSaoSimao(), u"sao_simao/SSIMAO.dat"_s},
          std::tuple{teste::TresMarias(), teste::HistoricoTresMarias(), u"tres_marias/TMARIAS.dat"_s}}) {
        grava(posto, vazoes);
        progresso.Valores.clear();
        EXPECT_EQ(conteudo(escrito(posto)), conteudo(CasoModelo::dourado(dourado))) << dourado.toStdString();
        ASSERT_GT(progresso.Valores.size(), 2u);
        EXPECT_EQ(progresso.Valores.front(), 0);
        EXPECT_DOUBLE_EQ(progresso.Valores[1], 100.0 / (3 * posto.getNumSemanas()))
            << "week 1 of the first year";
        EXPECT_TRUE(std::is_sorted(progresso.Valores.begin(), progresso.Valores.end()));
    }
}

TEST_F(VazoesSemanaisTeste, TextoMaiorQueSeuCampoFalhaNaEscrita) {
    Posto posto = teste::SaoSimao();
    posto.Nome = QString(60, u'N');
    grava(posto, teste::HistoricoSaoSimao());
    EXPECT_EQ(conteudo(escrito(posto)).indexOf("\r\n"), 69) << "sixty characters take no padding";

    posto.Nome += u'N';
    EXPECT_THROW(arq.geraVazoesSemanais(pastaExecucao(), posto, postoBD, progresso), plataforma::ErroVB);
    Historico vazoes = teste::HistoricoSaoSimao();
    vazoes(2, 3) = 1234567;
    grava(teste::SaoSimao(), vazoes);
    EXPECT_THROW(arq.geraVazoesSemanais(pastaExecucao(), teste::SaoSimao(), postoBD, progresso),
                 plataforma::ErroVB);
}

TEST_F(VazoesSemanaisTeste, LeOsArquivosDouradosEmOutroCaso) {
    corvalin::Opcoes opcoes;
    opcoes.Arquivos.ArquivoVazoesSemanais = u"[Código do Posto].dat"_s;
    opcoes.Arquivos.ArquivoRelatorio = u"[Nome do Aproveitamento].rel"_s;
    opcoesBD.setOpcoes(opcoes);

    Posto posto;
    ASSERT_TRUE(importa(dourado(u"sao_simao/SSIMAO.dat"_s), posto, false));
    EXPECT_TRUE(erros.isEmpty());
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(std::tuple(lido.Nome, lido.Area, lido.AnoInicial, lido.AnoFinal),
              std::tuple(u"São Simão"_s, 171000.5f, 1995, 1997));
    EXPECT_TRUE(teste::MesmoHistorico(teste::HistoricoSaoSimao(), historico(lido)));
    EXPECT_EQ(lido.Arquivos.ArquivoVazoesSemanais, u"33.dat"_s) << "the case's default names";
    EXPECT_EQ(lido.Arquivos.ArquivoRelatorio, u"São Simã.rel"_s);

    // The 53-week station, whose last year stops within its third line; no default names.
    posto = de53Semanas();
    ASSERT_TRUE(importa(dourado(u"tres_marias/TMARIAS.dat"_s), posto));
    ASSERT_TRUE(le(156, lido));
    EXPECT_EQ(lido.Nome, u"Três Marias"_s);
    lido.Arquivos.CasoUsa53Semanas = 1;
    EXPECT_TRUE(teste::MesmoHistorico(teste::HistoricoTresMarias(), historico(lido)));
    EXPECT_EQ(caso.linhas(u"DadosGerais"_s), 1) << "only São Simão took default names";

    // Read with the other week count: week 53 is skipped, not taken for the next year, or left empty.
    posto = Posto();
    ASSERT_TRUE(importa(dourado(u"tres_marias/TMARIAS.dat"_s), posto));
    EXPECT_EQ(historico(posto)(1, 52), 500 + 3.5f * 52);
    EXPECT_EQ(historico(posto)(2, 1), 603.5f);
    posto = de53Semanas();
    ASSERT_TRUE(importa(dourado(u"sao_simao/SSIMAO.dat"_s), posto));
    const Historico vazoes = historico(posto);
    EXPECT_EQ(std::tuple(vazoes(1, 52), vazoes(1, 53), vazoes(2, 10)), std::tuple(9876.5f, 0.f, 12.f));
}

TEST_F(VazoesSemanaisTeste, ZeroNoMeioDoAnoSoSobreviveNoFimDaSextaLinha) {
    const auto escreveELe = [this](int semanaZero, Posto& lido) {
        Historico vazoes = teste::HistoricoSaoSimao();
        vazoes(1, semanaZero) = 0;
        grava(teste::SaoSimao(), vazoes);
        const QString caminho = escrito(teste::SaoSimao());
        lido = Posto();
        erros.clear();
        return importa(caminho, lido);
    };
    Posto lido;

    // Week 5 ends 1995 in its first line: the reader meets 1996 in the second line and names the
    // line before it.
    EXPECT_FALSE(escreveELe(5, lido));
    EXPECT_EQ(erros, u"Vazões Semanais (o ano 1995 está incompleto - linha: 3)"_s);
    Historico gravado = teste::HistoricoSaoSimao();
    gravado(1, 5) = 0;
    EXPECT_TRUE(teste::MesmoHistorico(gravado, historico(teste::SaoSimao()))) << "the case is as it was";

    // Behind the first value of the sixth line, the rest of the year is just zeros.
    ASSERT_TRUE(escreveELe(50, lido));
    gravado = teste::HistoricoSaoSimao();
    gravado(1, 50) = gravado(1, 51) = gravado(1, 52) = 0;
    EXPECT_TRUE(teste::MesmoHistorico(gravado, historico(lido)));

    // As the first value of the sixth line, no sixth line is written: 1996's first line takes its
    // place unchecked and everything after it is one line out of step.
    ASSERT_TRUE(escreveELe(46, lido));
    EXPECT_EQ(historico(lido)(1, 46), 1000 + 37 * 1 + 11 + 0.5f) << "1996's week 1";
    EXPECT_EQ(historico(lido)(2, 1), 12.f) << "1996's week 10";
}

TEST_F(VazoesSemanaisTeste, CodigoDasColunas3A10ENomeSempreTrocado) {
    const auto leIdentificacao = [&](const QString& identificacao, std::int32_t codigoDado = 0) {
        Posto posto;
        posto.Codigo = codigoDado;
        EXPECT_TRUE(importa(
            doPosto(u" 2000 2000   100."_s, {linhaDeDados({u"5."_s}, u"2000"_s)}, identificacao), posto));
        return std::pair{posto.Codigo, posto.Nome};
    };
    // Seven digits lose the first one; a name that begins with a digit extends the code; a code
    // already in the record wins, and the file's station lands under it with its name.
    EXPECT_EQ(leIdentificacao(u" 1234567 Ilha Solteira"_s), std::pair(234567, u"Ilha Solteira"_s));
    EXPECT_EQ(leIdentificacao(u"      33 3 Irmãos"_s), std::pair(333, u"3 Irmãos"_s));
    EXPECT_EQ(leIdentificacao(u"      33 Jupiá"_s, 77), std::pair(77, u"Jupiá"_s));
    Posto posto;
    EXPECT_TRUE(le(77, posto));
    EXPECT_EQ(historico(posto)(1, 1), 5.f);
    EXPECT_TRUE(erros.isEmpty());
}

TEST_F(VazoesSemanaisTeste, CamposEntreZerosEUltimoAnoQueAcabaCedo) {
    // A value without its point reads ten times too large; blank and bare "." read as 0, and so
    // does a negative value, whose sign stands behind the leading zero.
    const QString linha =
        linhaDeDados({u"123"_s, u"123.5"_s, QString(), u"."_s, u"-7.25."_s, u"1 2."_s}, u"2001"_s);
    // The last year: a full first line, then a line that stops inside its fourth field.
    const QString curta = linhaDeDados({u"1."_s, u"2."_s, u"3."_s, u"4."_s}, QString()).left(29);
    // A short sixth line before the last year is not checked: its missing fields are zeros.
    QStringList anterior = anoCompleto(2000);
    anterior[5] = anterior[5].left(17);
    Posto posto;
    ASSERT_TRUE(importa(doPosto(u" 2000 2001  2500.5."_s, anterior << linha << curta), posto));
    EXPECT_EQ(posto.Area, 2500.5f);
    const Historico vazoes = historico(posto);
    EXPECT_EQ(vazoes(1, 47), 147.f);
    EXPECT_EQ(vazoes(1, 48), 0.f);
    const float esperados[] = {1230, 123.5f, 0, 0, 0, 12, 0, 0, 0, 1, 2, 3, 0};
    for (int semana = 1; semana <= 13; ++semana) {
        EXPECT_EQ(vazoes(2, semana), esperados[semana - 1]) << "week " << semana;
    }

    // The last year may also end at a line boundary, even right after the period line.
    ASSERT_TRUE(importa(doPosto(u" 2001 2001   10."_s, {}), posto));
    EXPECT_EQ(historico(posto)(1, 1), 0.f);
}

TEST_F(VazoesSemanaisTeste, AnoIncompletoNomeiaALinhaAnterior) {
    QStringList dados;
    for (int ano = 1996; ano <= 2000; ++ano) {
        dados << anoCompleto(ano);
    }
    dados[5] = dados[5].left(76) + u"1492"_s;            // the sixth line's year is never looked at
    dados[18 + 3] = dados[18 + 3].left(76) + u"2000"_s;  // line 24 of the file
    erros = u"Dados Gerais"_s;
    Posto posto;
    EXPECT_FALSE(importa(doPosto(u" 1996 2000  900."_s, dados), posto));
    EXPECT_EQ(erros, u"Dados Gerais, Vazões Semanais (o ano 1999 está incompleto - linha: 23)"_s);
    EXPECT_EQ(posto.AnoInicial, 1996) << "the header stays in the record";
    EXPECT_EQ(gravadas(), 0);

    // A short line before the last year reads its blank year as 0; blanks alone are no entry.
    dados[18 + 3] = anoCompleto(1999)[3];
    dados[7] = dados[7].left(30);
    erros = u"   "_s;
    EXPECT_FALSE(importa(doPosto(u" 1996 2000  900."_s, dados), posto));
    EXPECT_EQ(erros, u"   Vazões Semanais (o ano 1997 está incompleto - linha: 9)"_s);
}

TEST_F(VazoesSemanaisTeste, SoCabecalhoNaoGravaNada) {
    const QString caminho = doPosto(u" 1931 2020 12345."_s, {});
    Posto p;
    ASSERT_TRUE(importa(caminho, p, false, true));
    EXPECT_EQ(std::tuple(p.Codigo, p.Nome, p.AnoInicial, p.AnoFinal, p.Area),
              std::tuple(33, u"Jupiá"_s, 1931, 2020, 12345.f));
    EXPECT_EQ(gravadas(), 0);

    // Read whole, the same file ends in its first year.
    p = Posto();
    EXPECT_FALSE(importa(caminho, p, false));
    EXPECT_EQ(erros, u"Vazões Semanais"_s);
    EXPECT_EQ(gravadas(), 0);
}

TEST_F(VazoesSemanaisTeste, FormatoIncompativelAvisaUmaVez) {
    for (const QString& identificacao : {u"       0 Jupiá"_s, u"      33      "_s, u"ABCDEFGHIJ"_s}) {
        host.dialogo.limpa();
        progresso.Escondido = 0;
        Posto posto;
        EXPECT_FALSE(importa(doPosto(u" 1 2 3"_s, {}, identificacao), posto)) << identificacao.toStdString();
        ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
        const auto& m = host.dialogo.Mensagens()[0];
        EXPECT_EQ(m.texto,
                  u"Arquivo com formato incompatível. Verifique se o arquivo selecionado é válido."_s);
        EXPECT_EQ(std::tuple(m.titulo, m.icone, m.botoes),
                  std::tuple(u"Informação"_s, halvo::Icone::Nenhum, halvo::Botoes::Ok));
        EXPECT_EQ(progresso.Escondido, 1) << "the progress is out of the way first";
    }
    EXPECT_TRUE(erros.isEmpty());
    EXPECT_EQ(gravadas(), 0);
}

TEST_F(VazoesSemanaisTeste, FalhasDeLeituraSoEntramNaLista) {
    Posto posto;
    EXPECT_FALSE(importa(host.caminho(u"nada.dat"_s), posto));
    EXPECT_TRUE(erros.isEmpty()) << "a missing file is no entry";

    const QStringList umAno = anoCompleto(2000);
    const std::pair<QString, QStringList> casos[] = {
        {u"99999 2000  10."_s, umAno},    // a year beyond 16 bits
        {u" 2000 1998  10."_s, {}},       // a negative year count
        {u" 2000 2000 4E+38."_s, umAno},  // an area beyond a float
        {u" 2000 2000  10."_s, {linhaDeDados({u"9E+99"_s}, u"2000"_s)}},
        {u" 1999 2000  10."_s, anoCompleto(1999).mid(0, 3)},  // the file ends in an earlier year
    };
    for (const auto& [periodo, dados] : casos) {
        erros.clear();
        posto = Posto();
        EXPECT_FALSE(importa(doPosto(periodo, dados), posto)) << periodo.toStdString();
        EXPECT_EQ(erros, u"Vazões Semanais"_s) << periodo.toStdString();
    }
    erros.clear();
    EXPECT_FALSE(importa(arquivo(u"so1.dat"_s, linhas({u"      33 Jupiá"_s})), posto)) << "no period line";
    EXPECT_EQ(erros, u"Vazões Semanais"_s);
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
    EXPECT_EQ(gravadas(), 0);

    // One year fewer than none is still a shape: the station comes in without history.
    ASSERT_TRUE(importa(doPosto(u" 2000 1999  10."_s, {}), posto));
    EXPECT_EQ(caso.linhas(u"Postos"_s), 1);
}

TEST_F(VazoesSemanaisTeste, FalhaDoBancoNoMeioNaoDeixaMetadeDoPosto) {
    grava(teste::SaoSimao(), teste::HistoricoSaoSimao());
    caso.bd->BancoDeDados().Execute(
        u"CREATE TRIGGER bloqueia BEFORE INSERT ON VazoesSemanais WHEN NEW.Ano = 1997 "
        u"BEGIN SELECT RAISE(ABORT, 'bloqueado'); END"_s);
    Posto posto;
    posto.Codigo = 33;
    EXPECT_FALSE(importa(
        doPosto(u" 1996 1997   10."_s, anoCompleto(1996) + anoCompleto(1997), u"      33 Novo Nome"_s), posto,
        false));
    EXPECT_EQ(erros, u"Vazões Semanais"_s) << "a store's failure is the file's";
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(std::pair(lido.Nome, lido.AnoInicial), std::pair(u"São Simão"_s, std::int16_t{1995}));
    EXPECT_TRUE(teste::MesmoHistorico(teste::HistoricoSaoSimao(), historico(lido)));
}

}  // namespace
