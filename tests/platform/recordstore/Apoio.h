#pragma once

#include "platform/recordstore/Recordstore.h"
#include "tests/platform/runtime/NumeroDoErro.h"

#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <vector>

inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

// A fresh database in a folder of its own, with the two shapes of table the stores use most: a
// catalogue keyed by a code and sorted by a name, and a history under a three-field key.
class BaseDeTeste : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(mPasta.isValid());
        bd = recordstore::Database::CreateDatabase(caminho());
    }

    QString caminho(const QString& nome = QStringLiteral("Corvalin.mdb")) const {
        return mPasta.filePath(nome);
    }

    void criaPostos() {
        using recordstore::Tipo;
        recordstore::TableDef t{
            QStringLiteral("Postos"),
            {recordstore::CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
             recordstore::CreateField(QStringLiteral("NomeDoAproveitamento"), Tipo::Texto, 60),
             recordstore::CreateField(QStringLiteral("AreaDeDrenagem"), Tipo::Single)},
            {{QStringLiteral("CodigoDoPosto"), true, QStringLiteral("CodigoDoPosto")},
             {QStringLiteral("NomeDoAproveitamento"), false, QStringLiteral("NomeDoAproveitamento")}}};
        t.Fields[2].DefaultValue = 0;
        bd->Append(t);
    }

    void criaVazoes() {
        using recordstore::Tipo;
        bd->Append(
            {QStringLiteral("VazoesSemanais"),
             {recordstore::CreateField(QStringLiteral("CodigoDoPosto"), Tipo::Long),
              recordstore::CreateField(QStringLiteral("Ano"), Tipo::Integer),
              recordstore::CreateField(QStringLiteral("Semana"), Tipo::Byte),
              recordstore::CreateField(QStringLiteral("Vazao"), Tipo::Single)},
             {{QStringLiteral("CodigoDoPostoAnoSemana"), true, QStringLiteral("CodigoDoPosto;+Ano;+Semana")},
              {QStringLiteral("CodigoDoPosto"), false, QStringLiteral("CodigoDoPosto")}}});
    }

    static void adicionaPosto(recordstore::Recordset& rs, int codigo, const QString& nome) {
        rs.AddNew();
        rs.setCampo(QStringLiteral("CodigoDoPosto"), codigo);
        rs.setCampo(QStringLiteral("NomeDoAproveitamento"), nome);
        rs.Update();
    }

    static void adicionaVazao(recordstore::Recordset& rs, int codigo, int ano, int semana, double vazao) {
        rs.AddNew();
        rs.setCampo(QStringLiteral("CodigoDoPosto"), codigo);
        rs.setCampo(QStringLiteral("Ano"), ano);
        rs.setCampo(QStringLiteral("Semana"), semana);
        rs.setCampo(QStringLiteral("Vazao"), vazao);
        rs.Update();
    }

    static std::int64_t inteiro(const recordstore::Recordset& rs, const char* campo) {
        return rs.campo(QString::fromLatin1(campo)).paraInteiro();
    }

    // The field's values from the current record to the end (or the beginning, going back).
    static std::vector<std::int64_t> ateOFim(recordstore::Recordset& rs, const char* campo,
                                             bool avanca = true) {
        std::vector<std::int64_t> valores;
        while (avanca ? !rs.Eof() : !rs.Bof()) {
            valores.push_back(inteiro(rs, campo));
            avanca ? rs.MoveNext() : rs.MovePrevious();
        }
        return valores;
    }

    static int contaLinhas(recordstore::Recordset& rs) {
        int n = 0;
        if (!(rs.Bof() && rs.Eof())) {
            rs.MoveFirst();
            for (; !rs.Eof(); rs.MoveNext()) {
                ++n;
            }
        }
        return n;
    }

    // Runs the sqlite3 command-line shell on a file; empty when the shell is not installed.
    static QString sqlite3(const QString& arquivo, const QString& comandos) {
        const QString programa = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
        if (programa.isEmpty()) {
            return {};
        }
        QProcess p;
        p.start(programa, {arquivo});
        p.write(comandos.toUtf8());
        p.closeWriteChannel();
        p.waitForFinished();
        return QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError());
    }

    QTemporaryDir mPasta;
    std::unique_ptr<recordstore::Database> bd;
};
