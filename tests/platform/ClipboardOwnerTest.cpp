TEST(ClipboardOwner, IsGivenASecondOnX11)
{
    QProcess display, helper, owner;
    const auto line = [](QProcess &process) {
        while (!process.canReadLine() && process.waitForReadyRead()) {
        }
        return process.readLine().trimmed().toStdString();
    };
    display.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-noreset"});
    QProcessEnvironment there = QProcessEnvironment::systemEnvironment();
    there.insert("DISPLAY", QString::fromStdString(':' + line(display)));
    there.insert("QT_QPA_PLATFORM", "xcb");
    for (QProcess *each : {&helper, &owner})
        each->setProcessEnvironment(there);
    helper.start(CLIPBOARD_HELPER);
    const auto tell = [&](const char *command) {
        helper.write(QByteArray(command) + '\n');
        return line(helper);
    };
    EXPECT_EQ(tell("nobody"), "answers at once");
    EXPECT_EQ(tell("own"), "own, answers at once");
    owner.setReadChannel(QProcess::StandardError);
    owner.start("xclip", {"-selection", "clipboard", "-quiet"});
    owner.write("words");
    owner.closeWriteChannel();
    ASSERT_NE(line(owner), "") << "it takes the clipboard soon";
    while (tell("until another has it") == "own, answers at once") {
    }
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(tell("another"), "answers at once");
        ::kill(pid_t(owner.processId()), SIGSTOP);
        EXPECT_EQ(tell("another that hangs"), "hangs");
        ::kill(pid_t(owner.processId()), SIGCONT);
    }
    helper.closeWriteChannel();
    EXPECT_TRUE(helper.waitForFinished());
    for (QProcess *each : {&owner, &display}) {
        each->kill();
        each->waitForFinished();
    }
}
