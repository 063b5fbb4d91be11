<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AnimText::studio::window::findings::FindingsList</name>
    <message numerus="yes">
        <source>And %n more</source>
        <translation>
            <numerusform>And %n more</numerusform>
            <numerusform>And %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::form::IntegratorView</name>
    <message numerus="yes">
        <source>%n pixel(s) differ</source>
        <translation>
            <numerusform>%n pixel differs</numerusform>
            <numerusform>%n pixels differ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::shell::MainWindow</name>
    <message numerus="yes">
        <source>%n problem(s)</source>
        <translation>
            <numerusform>%n problem</numerusform>
            <numerusform>%n problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AnimText::studio::window::time::TransportBar</name>
    <message numerus="yes">
        <source> · %n page(s) lost</source>
        <translation>
            <numerusform> · %n page lost</numerusform>
            <numerusform> · %n pages lost</numerusform>
        </translation>
    </message>
</context>
</TS>
