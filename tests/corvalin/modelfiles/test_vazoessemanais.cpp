#include "tests/corvalin/modelfiles/CasoModelo.h"

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

class VazoesSemanaisTeste : public teste::CasoModelo {
protected:
    bool importa(const QString& caminho, Posto& posto) {
        return arq.importaVazoesSemanais(caminho, erros, progresso, posto, postoBD, opcoesBD, true, false);
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

// Written from one case, and read into another code of the same case: the 53-week station's last
// year stops within its third line.
TEST_F(VazoesSemanaisTeste, ArquivosDouradosComAcentosE53SemanasDeIdaEVolta) {
    for (const auto& [posto, vazoes, dourado] :
         {std::tuple{teste::SaoSimao(), teste::HistoricoSaoSimao(), u"sao_simao/SSIMAO.dat"_s},
          std::tuple{teste::TresMarias(), teste::HistoricoTresMarias(), u"tres_marias/TMARIAS.dat"_s}}) {
        grava(posto, vazoes);
        EXPECT_EQ(conteudo(escrito(posto)), conteudo(CasoModelo::dourado(dourado))) << dourado.toStdString();

        Posto lido;
        lido.Codigo = posto.Codigo + 1000;
        lido.Arquivos.CasoUsa53Semanas = posto.Arquivos.CasoUsa53Semanas;
        ASSERT_TRUE(importa(CasoModelo::dourado(dourado), lido));
        EXPECT_EQ(std::tuple(lido.Nome, lido.Area, lido.AnoInicial, lido.AnoFinal),
                  std::tuple(posto.Nome, posto.Area, posto.AnoInicial, posto.AnoFinal));
        EXPECT_TRUE(teste::MesmoHistorico(vazoes, historico(lido)));
    }
    EXPECT_TRUE(erros.isEmpty());
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
}

TEST_F(VazoesSemanaisTeste, FormatoIncompativelAvisaUmaVez) {
    for (const QString& identificacao : {u"       0 Jupiá"_s, u"      33      "_s, u"ABCDEFGHIJ"_s}) {
        host.dialogo.limpa();
        Posto posto;
        EXPECT_FALSE(importa(doPosto(u" 1 2 3"_s, {}, identificacao), posto)) << identificacao.toStdString();
        ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
        const auto& m = host.dialogo.Mensagens()[0];
        EXPECT_EQ(
            std::tuple(m.texto, m.titulo, m.icone, m.botoes),
            std::tuple(u"Arquivo com formato incompatível. Verifique se o arquivo selecionado é válido."_s,
                       u"Informação"_s, halvo::Icone::Nenhum, halvo::Botoes::Ok));
    }
    EXPECT_TRUE(erros.isEmpty());
    EXPECT_EQ(gravadas(), 0);
}

}  // namespace
