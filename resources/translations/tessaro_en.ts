<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message numerus="yes">
        <source>“%1” was given %n words, which is not what it takes.</source>
        <translation>
            <numerusform>“%1” was given one word, which is not what it takes.</numerusform>
            <numerusform>“%1” was given %n words, which is not what it takes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message numerus="yes">
        <source>Moving %n templates</source>
        <translation>
            <numerusform>Moving one template</numerusform>
            <numerusform>Moving %n templates</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> and %n more</source>
        <translation>
            <numerusform> and one more</numerusform>
            <numerusform> and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportJobs</name>
    <message numerus="yes">
        <source>Copying %n items</source>
        <translation>
            <numerusform>Copying one item</numerusform>
            <numerusform>Copying %n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProjectCreation</name>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>and one more; the log names it</numerusform>
            <numerusform>and %n more; the log names each</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RenameSheet</name>
    <message numerus="yes">
        <source>Rename %n Items</source>
        <translation>
            <numerusform>Rename One Item</numerusform>
            <numerusform>Rename %n Items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TemplateLibrary</name>
    <message numerus="yes">
        <source>%n items of %1 could not be put into the archive as they are</source>
        <translation>
            <numerusform>One item of %1 could not be put into the archive as it is</numerusform>
            <numerusform>%n items of %1 could not be put into the archive as they are</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TessaroAppDelegate</name>
    <message numerus="yes">
        <source>and %n more; the log names each</source>
        <translation>
            <numerusform>and one more; the log names it</numerusform>
            <numerusform>and %n more; the log names each</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more; “Tessaro check” names each</source>
        <translation>
            <numerusform>and one more; “Tessaro check” names it</numerusform>
            <numerusform>and %n more; “Tessaro check” names each</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished</name>
    <message numerus="yes">
        <source>The computer lost its power, or was switched off, before all of the project had reached its drive. %n of its files are empty or cut off:</source>
        <translation>
            <numerusform>The computer lost its power, or was switched off, before all of the project had reached its drive. One of its files is empty or cut off:</numerusform>
            <numerusform>The computer lost its power, or was switched off, before all of the project had reached its drive. %n of its files are empty or cut off:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VTOutlineView</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>one item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
</context>
</TS>
