<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Base</name>
    <message>
        <source>The Corvane database has not been defined. The application can not continue. Corvane will now terminate...</source>
        <translation>No se ha definido la base de datos de Corvane. La aplicación no puede continuar. Corvane se cerrará ahora...</translation>
    </message>
    <message>
        <source>The Corvane database:
%1
does not appear to be valid. Corvane will now terminate...</source>
        <translation>La base de datos de Corvane:
%1
no parece válida. Corvane se cerrará ahora...</translation>
    </message>
    <message>
        <source>The text is not UTF-8. Save the file in UTF-8 and try again.</source>
        <translation>El texto no está en UTF-8. Guarde el archivo en UTF-8 e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is a zero byte in the text. This is no CSV file in UTF-8.</source>
        <translation>El texto contiene un byte cero. No es un archivo CSV en UTF-8.</translation>
    </message>
    <message>
        <source>There is a text here that is larger than any field takes.</source>
        <translation>Hay un texto más largo de lo que admite cualquier campo.</translation>
    </message>
    <message>
        <source>There is a quote inside a field that does not begin with one.</source>
        <translation>Hay unas comillas dentro de un campo que no empieza por comillas.</translation>
    </message>
    <message>
        <source>The quote that opens on this line never closes.</source>
        <translation>Las comillas que se abren en esta línea no se cierran.</translation>
    </message>
    <message>
        <source>There is text after a closing quote.</source>
        <translation>Hay texto después de las comillas de cierre.</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>No se ha podido escribir la salida: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is out of range</source>
        <translation>«%1» está fuera del intervalo permitido</translation>
    </message>
    <message>
        <source>%1 is more than a year away from today.
Do you want this date all the same?</source>
        <translation>%1 está a más de un año de la fecha de hoy.
¿Desea usar esta fecha de todos modos?</translation>
    </message>
    <message>
        <source>%1 is not a valid value for field &apos;%2&apos;. The allowed range is 1 to 12</source>
        <translation>%1 no es un valor válido para el campo «%2». El intervalo permitido es de 1 a 12</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; may hold letters only</source>
        <translation>%1 «%2» solo puede contener letras</translation>
    </message>
    <message>
        <source>You do not have a default printer defined.

To preview or print reports a printer must be defined, though not necessarily attached.</source>
        <translation>No tiene definida una impresora predeterminada.

Para ver o imprimir informes debe haber una impresora definida, aunque no es necesario que esté conectada.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>The rows that were read cannot be kept in &apos;%1&apos;...
%2</source>
        <translation>No se pueden conservar en «%1» las filas leídas...
%2</translation>
    </message>
    <message>
        <source>Unable to save &apos;%1&apos;...
%2</source>
        <translation>No se puede guardar «%1»...
%2</translation>
    </message>
    <message>
        <source>Error in Opening Corvane Key</source>
        <translation>Error al abrir la clave de Corvane</translation>
    </message>
    <message>
        <source>This is a disk, not a file.</source>
        <translation>Es un disco, no un archivo.</translation>
    </message>
    <message>
        <source>Nobody reads from this pipe.</source>
        <translation>Nadie lee de esta canalización.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number</source>
        <translation>«%1» no es un número entero</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number</source>
        <translation>«%1» no es un número</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid date. It is entered as %2.</source>
        <translation>«%1» no es una fecha válida. Se escribe así: %2.</translation>
    </message>
    <message>
        <source>The data in %1 are of a newer release, %2, and this one, %3, would take out what it does not know. Nothing has been changed. Install that release or a later one to work with them (data version %4; this release knows %5).</source>
        <translation>Instale esa versión o una posterior para trabajar con los datos de %1: son de una versión más reciente, %2, y esta, %3, eliminaría lo que no conoce. No se ha modificado nada (versión de los datos %4; esta versión conoce la %5).</translation>
    </message>
    <message>
        <source>cannot be read, error %1</source>
        <translation>no se puede leer, error %1</translation>
    </message>
    <message>
        <source>Server, %1</source>
        <translation>Servidor, %1</translation>
    </message>
    <message>
        <source>Folder, %1</source>
        <translation>Carpeta, %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>%1, from release %2</source>
        <translation>%1, de la versión %2</translation>
    </message>
    <message>
        <source>no temporary file could be made in %1</source>
        <translation>no se ha podido crear un archivo temporal en %1</translation>
    </message>
    <message>
        <source>There are more rows than a sheet can hold (%1). Save as CSV instead.</source>
        <translation>Guarde como CSV: hay más filas de las que admite una hoja (%1).</translation>
    </message>
    <message>
        <source>Row %1: the text in %2 is longer than a cell can hold (%3 characters). Save as CSV instead.</source>
        <translation>Guarde como CSV: en la fila %1, el texto de %2 es más largo de lo que admite una celda (%3 caracteres).</translation>
    </message>
    <message>
        <source>As of %1, from the primary server: the standby server is too far behind</source>
        <translation>Datos de %1, del servidor principal: el servidor de reserva va demasiado retrasado</translation>
    </message>
    <message>
        <source>As of %1, from the primary server: the standby server has ended the reading</source>
        <translation>Datos de %1, del servidor principal: el servidor de reserva ha terminado la lectura</translation>
    </message>
    <message>
        <source>As of %1, from the primary server: there is no standby server to read from</source>
        <translation>Datos de %1, del servidor principal: no hay ningún servidor de reserva del que leer</translation>
    </message>
    <message>
        <source>As of %1, from the standby server %2</source>
        <translation>Datos de %1, del servidor de reserva %2</translation>
    </message>
    <message>
        <source>As of %1, %n second behind, from the standby server %2</source>
        <translation>Datos de %1, con %n segundo de retraso, del servidor de reserva %2</translation>
    </message>
    <message>
        <source>As of %1, %n seconds behind, from the standby server %2</source>
        <translation>Datos de %1, con %n segundos de retraso, del servidor de reserva %2</translation>
    </message>
    <message>
        <source>(the decimal sign is &apos;%1&apos;, as in %2)</source>
        <translation>(el signo decimal es «%1», como en %2)</translation>
    </message>
</context>
<context>
    <name>Books</name>
    <message>
        <source>There are books already in %1. Nothing has been changed.</source>
        <translation>Ya hay libros en %1. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>the server %1</source>
        <translation>el servidor %1</translation>
    </message>
    <message>
        <source>Enter the name of the company.</source>
        <translation>Introduzca el nombre de la empresa.</translation>
    </message>
    <message>
        <source>Choose the folder for the books.</source>
        <translation>Elija la carpeta para los libros.</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>No se pudo crear la carpeta %1: %2</translation>
    </message>
</context>
<context>
    <name>Care</name>
    <message>
        <source>Nothing can be written in %1: %2</source>
        <translation>No se puede escribir nada en %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied into %2. Is there room on the disk?</source>
        <translation>No se puede copiar %1 en %2. ¿Hay espacio en el disco?</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>No se ha podido escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be written: there is a file of this name by now.</source>
        <translation>No se ha podido escribir %1: entretanto se ha creado un archivo con ese nombre.</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 MB left, and %3 MB are needed.</source>
        <translation>En el disco de %1 quedan %2 MB y se necesitan %3 MB.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name.</source>
        <translation>%1 ya existe. Elija otro nombre.</translation>
    </message>
    <message>
        <source>%1 is damaged: %2</source>
        <translation>%1 está dañado: %2</translation>
    </message>
    <message>
        <source>%1 does not hold all of the table %2.</source>
        <translation>%1 no contiene completa la tabla %2.</translation>
    </message>
    <message>
        <source>Restored from the backup %1</source>
        <translation>Restaurado de la copia de seguridad %1</translation>
    </message>
    <message>
        <source>This backup is of a newer release: its table %1 has a field %2 that this one does not know and would take out. Restore it with that release.</source>
        <translation>Restaure esta copia de seguridad con la versión más reciente que la hizo: su tabla %1 tiene un campo %2 que esta versión no conoce y eliminaría.</translation>
    </message>
    <message>
        <source>%1 is no backup of a database, or it is damaged.</source>
        <translation>%1 no es una copia de seguridad de una base de datos, o está dañada.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>No existe el archivo %1.</translation>
    </message>
    <message>
        <source>Only a database in a folder can be kept as it stands.</source>
        <translation>Solo se puede conservar tal como está una base de datos que se encuentre en una carpeta.</translation>
    </message>
    <message>
        <source>%1 holds a database already.</source>
        <translation>%1 ya contiene una base de datos.</translation>
    </message>
    <message>
        <source>Choose a folder for the daily backups.</source>
        <translation>Elija una carpeta para las copias de seguridad diarias.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>No existe la carpeta %1.</translation>
    </message>
    <message>
        <source>The backup was made, but the older one %1 could not be removed.</source>
        <translation>La copia de seguridad se ha hecho, pero no se ha podido eliminar la anterior %1.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>On hand is %1, the history comes to %2.</source>
        <translation>Las existencias son %1 y el historial da %2.</translation>
    </message>
    <message>
        <source>Totals and values count %1 that no document accounts for.</source>
        <translation>Los totales y los valores incluyen %1 que ningún documento justifica.</translation>
    </message>
    <message>
        <source>Count the item once its documents are in order.</source>
        <translation>Haga un recuento del artículo cuando sus documentos estén en orden.</translation>
    </message>
    <message>
        <source>Count the item. What a host has brought along without a history is right as it is.</source>
        <translation>Haga un recuento del artículo. Lo que una aplicación anfitriona haya traído sin historial es correcto tal como está.</translation>
    </message>
    <message>
        <source>This could not be checked to its end: %1</source>
        <translation>No se ha podido comprobar hasta el final: %1</translation>
    </message>
    <message>
        <source>What stands there is missing in all figures.</source>
        <translation>Lo que contiene falta en todas las cifras.</translation>
    </message>
    <message>
        <source>Restore the last backup, or let a damaged table be mended.</source>
        <translation>Restaure la última copia de seguridad o haga reparar la tabla dañada.</translation>
    </message>
    <message>
        <source>Structure</source>
        <translation>Estructura</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>Counters</source>
        <translation>Contadores</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Referencias</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Balances</source>
        <translation>Saldos</translation>
    </message>
    <message>
        <source>The counter %1 stands at %2, and %3 goes up to %4.</source>
        <translation>El contador %1 está en %2 y %3 llega hasta %4.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; new records look for a free key.</source>
        <translation>Ninguna cifra es errónea por ello; los registros nuevos buscan una clave libre.</translation>
    </message>
    <message>
        <source>A repair lets it go on above.</source>
        <translation>Una reparación lo hace continuar por encima de ese valor.</translation>
    </message>
    <message>
        <source>It is gone, and its history is there.</source>
        <translation>Ha desaparecido, pero su historial existe.</translation>
    </message>
    <message>
        <source>No line of it accounts for what its history has.</source>
        <translation>Ninguna de sus líneas justifica lo que figura en su historial.</translation>
    </message>
    <message>
        <source>It is not posted, and a part of it is in the history.</source>
        <translation>No está contabilizado, pero una parte figura en el historial.</translation>
    </message>
    <message>
        <source>Posting it counts that part twice.</source>
        <translation>Si se contabiliza, esa parte cuenta dos veces.</translation>
    </message>
    <message>
        <source>Delete it, and enter what is missing as a new document.</source>
        <translation>Elimínelo e introduzca lo que falte como documento nuevo.</translation>
    </message>
    <message>
        <source>It is marked as posted, and not in the history: %1.</source>
        <translation>Está marcado como contabilizado, pero no figura en el historial: %1.</translation>
    </message>
    <message>
        <source>Balances, values and the reports by period lack that.</source>
        <translation>Falta en los saldos, en los valores y en los informes por período.</translation>
    </message>
    <message>
        <source>Enter it as a new document and post that. If the type of the item was not stocked when it was posted, nothing is missing.</source>
        <translation>Introdúzcalo como documento nuevo y contabilícelo. Si el tipo del artículo no llevaba existencias cuando se contabilizó, no falta nada.</translation>
    </message>
    <message>
        <source>The reports by period count it; whether it is right nobody can see.</source>
        <translation>Los informes por período lo incluyen; nadie puede ver si es correcto.</translation>
    </message>
    <message>
        <source>Look whether a backup has the document.</source>
        <translation>Compruebe si una copia de seguridad tiene el documento.</translation>
    </message>
    <message>
        <source>It is not marked as posted, and all of it is in the history.</source>
        <translation>No está marcado como contabilizado, pero figura entero en el historial.</translation>
    </message>
    <message>
        <source>Posting it counts it twice.</source>
        <translation>Si se contabiliza, cuenta dos veces.</translation>
    </message>
    <message>
        <source>A repair marks it as posted.</source>
        <translation>Una reparación lo marca como contabilizado.</translation>
    </message>
    <message>
        <source>They count nowhere.</source>
        <translation>No cuentan en ninguna parte.</translation>
    </message>
    <message>
        <source>A repair takes them out.</source>
        <translation>Una reparación las quita.</translation>
    </message>
    <message>
        <source>If nobody is entering it just now, %1 is asked about it with the next new document.</source>
        <translation>Si nadie lo está introduciendo en este momento, se preguntará por él a %1 con el próximo documento nuevo.</translation>
    </message>
    <message>
        <source>Item with the key %1</source>
        <translation>Artículo con la clave %1</translation>
    </message>
    <message>
        <source>location with the key %1</source>
        <translation>ubicación con la clave %1</translation>
    </message>
    <message>
        <source>The number %1 is there %2 times.</source>
        <translation>El número %1 aparece %2 veces.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; what is found by its number may be the other one.</source>
        <translation>Ninguna cifra es errónea por ello; lo que se busca por su número puede ser el otro.</translation>
    </message>
    <message>
        <source>Open one of them and give it another number.</source>
        <translation>Abra uno de ellos y asígnele otro número.</translation>
    </message>
    <message>
        <source>%1 is %2, which is gone from %3.</source>
        <translation>%1 es %2, que ya no existe en %3.</translation>
    </message>
    <message>
        <source>Open it and choose another one.</source>
        <translation>Ábralo y elija otro.</translation>
    </message>
    <message>
        <source>Posted as it is, it moves the stock of a location that no list shows.</source>
        <translation>Si se contabiliza así, mueve existencias de una ubicación que no aparece en ninguna lista.</translation>
    </message>
    <message>
        <source>It cannot be converted by a rate, and is posted as it stands.</source>
        <translation>No se puede convertir con un tipo de cambio y se contabiliza tal como está.</translation>
    </message>
    <message>
        <source>Posted as it is, it moves the stock of an item that no list shows.</source>
        <translation>Si se contabiliza así, mueve existencias de un artículo que no aparece en ninguna lista.</translation>
    </message>
    <message>
        <source>Reports that group or convert by it leave the record out or show it without.</source>
        <translation>Los informes que agrupan o convierten por este dato omiten el registro o lo muestran sin él.</translation>
    </message>
    <message>
        <source>The indexes of the table were damaged, and have been built anew.</source>
        <translation>Los índices de la tabla estaban dañados y se han reconstruido.</translation>
    </message>
    <message>
        <source>Repaired: %1: %2</source>
        <translation>Reparado: %1: %2</translation>
    </message>
    <message>
        <source>Lists and reports may have lacked rows.</source>
        <translation>Puede que en listas e informes hayan faltado filas.</translation>
    </message>
    <message>
        <source>No row of it is lost.</source>
        <translation>No se ha perdido ninguna de sus filas.</translation>
    </message>
    <message>
        <source>This is not mended by what should mend it, so nothing has been changed: %1</source>
        <translation>La reparación prevista no lo corrige, así que no se ha modificado nada: %1</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Todo está en orden.</translation>
    </message>
    <message>
        <source>%n finding</source>
        <translation>%n hallazgo</translation>
    </message>
    <message>
        <source>%n findings</source>
        <translation>%n hallazgos</translation>
    </message>
    <message>
        <source>%1, mended: %2, left to you: %3</source>
        <translation>%1, corregidos: %2, a su cargo: %3</translation>
    </message>
    <message>
        <source>%1, a repair mends: %2</source>
        <translation>%1, se pueden reparar: %2</translation>
    </message>
    <message>
        <source>Can be mended</source>
        <translation>Reparable</translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Corregido</translation>
    </message>
    <message>
        <source>Left to you</source>
        <translation>A su cargo</translation>
    </message>
    <message>
        <source>Check of the Books</source>
        <translation>Comprobación de los libros</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobación</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Qué está mal</translation>
    </message>
    <message>
        <source>What it does to the figures</source>
        <translation>Efecto en las cifras</translation>
    </message>
    <message>
        <source>What mends it</source>
        <translation>Cómo se corrige</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The table %1 is missing.</source>
        <translation>Falta la tabla %1.</translation>
    </message>
    <message>
        <source>Whatever needs it stops with an error.</source>
        <translation>Todo lo que la necesita se detiene con un error.</translation>
    </message>
    <message>
        <source>Opening the inventory makes it, empty.</source>
        <translation>Al abrir el inventario se crea vacía.</translation>
    </message>
    <message>
        <source>Fields or indexes of the table %1 are not as they should be.</source>
        <translation>Los campos o índices de la tabla %1 no son como deberían.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; lists may be slow.</source>
        <translation>Ninguna cifra es errónea por ello; las listas pueden ser lentas.</translation>
    </message>
    <message>
        <source>Opening the inventory brings it up to date.</source>
        <translation>Al abrir el inventario se actualiza.</translation>
    </message>
    <message>
        <source>The last one that is known was made on %1 at %2.</source>
        <translation>La última conocida se hizo el %1 a las %2.</translation>
    </message>
    <message>
        <source>None is known to this database; look where they are kept.</source>
        <translation>Esta base de datos no conoce ninguna; búsquelas donde se guarden.</translation>
    </message>
    <message>
        <source>(and %1 lines like these)</source>
        <translation>(y %1 líneas como estas)</translation>
    </message>
    <message>
        <source>Lists, totals and reports may lack rows or stop with an error.</source>
        <translation>Puede que en listas, totales e informes falten filas o que se detengan con un error.</translation>
    </message>
    <message>
        <source>Rows are damaged, and no repair brings them back: restore the last backup. %1</source>
        <translation>Restaure la última copia de seguridad: hay filas dañadas y ninguna reparación las recupera. %1</translation>
    </message>
    <message>
        <source>A repair builds the indexes of these tables anew, and no row of them is lost: %1.</source>
        <translation>Una reparación reconstruye los índices de estas tablas sin perder ninguna fila: %1.</translation>
    </message>
    <message>
        <source>The table %1 does not hold the same in the copy.</source>
        <translation>La tabla %1 no contiene lo mismo en la copia.</translation>
    </message>
    <message>
        <source>Open the record and enter it anew.</source>
        <translation>Abra el registro y vuelva a introducirlo.</translation>
    </message>
    <message>
        <source>%1 is not what the field holds.</source>
        <translation>El contenido de %1 no es del tipo que admite el campo.</translation>
    </message>
    <message>
        <source>It counts as zero or as nothing.</source>
        <translation>Cuenta como cero o como nada.</translation>
    </message>
    <message>
        <source>%1 is infinite or no number.</source>
        <translation>%1 es infinito o no es un número.</translation>
    </message>
    <message>
        <source>Every sum that it goes into is worth nothing.</source>
        <translation>Todas las sumas en que interviene carecen de valor.</translation>
    </message>
    <message>
        <source>%1 is no date.</source>
        <translation>%1 no es una fecha.</translation>
    </message>
    <message>
        <source>It counts as no date.</source>
        <translation>Cuenta como si no hubiera fecha.</translation>
    </message>
    <message>
        <source>%1 is longer than %2 characters.</source>
        <translation>%1 tiene más de %2 caracteres.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; a server would not take it.</source>
        <translation>Ninguna cifra es errónea por ello; un servidor no lo admitiría.</translation>
    </message>
    <message>
        <source>Open the record and shorten it.</source>
        <translation>Abra el registro y acórtelo.</translation>
    </message>
    <message>
        <source>%1 is empty, and is part of the key.</source>
        <translation>%1 está vacío y forma parte de la clave.</translation>
    </message>
    <message>
        <source>The row cannot be opened, changed or deleted on a screen.</source>
        <translation>La fila no se puede abrir, modificar ni eliminar en ninguna pantalla.</translation>
    </message>
    <message>
        <source>Take the row out with the store&apos;s own tools, once it is clear what it was.</source>
        <translation>Quite la fila con las herramientas propias de la base de datos cuando esté claro qué era.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 está vacío.</translation>
    </message>
    <message>
        <source>Lists, reports and posting may pass the document over.</source>
        <translation>Puede que las listas, los informes y la contabilización omitan el documento.</translation>
    </message>
    <message>
        <source>GLPeriod is no period of a year.</source>
        <translation>GLPeriod no es un período del año.</translation>
    </message>
    <message>
        <source>Reports by period leave the document out.</source>
        <translation>Los informes por período omiten el documento.</translation>
    </message>
    <message>
        <source>The line moves nothing, and its document cannot be posted as it stands.</source>
        <translation>La línea no mueve nada y su documento no se puede contabilizar tal como está.</translation>
    </message>
    <message>
        <source>The table %1 has %2 rows in the copy, and %3 where they come from.</source>
        <translation>La tabla %1 tiene %2 filas en la copia y %3 en el origen.</translation>
    </message>
    <message>
        <source>The sum of %1 in the table %2 is %3 in the copy, and %4 where they come from.</source>
        <translation>La suma de %1 en la tabla %2 es %3 en la copia y %4 en el origen.</translation>
    </message>
    <message>
        <source>%n row</source>
        <translation>%n fila</translation>
    </message>
    <message>
        <source>%n rows</source>
        <translation>%n filas</translation>
    </message>
    <message>
        <source>%1, %2 items, %3 rows of history</source>
        <translation>%1, %2 artículos, %3 filas de historial</translation>
    </message>
    <message>
        <source>%1 is where the books are already.</source>
        <translation>Los libros ya están en %1.</translation>
    </message>
    <message>
        <source>%1 holds no books.</source>
        <translation>%1 no contiene libros.</translation>
    </message>
    <message>
        <source>The books in %1 were left by an older release. Open them once with this one before they move.</source>
        <translation>Los libros de %1 son de una versión anterior. Ábralos una vez con esta antes de trasladarlos.</translation>
    </message>
    <message>
        <source>%1 holds books already (%2), and nothing is copied over them. Choose a place that holds none.</source>
        <translation>%1 ya contiene libros (%2) y no se copia nada sobre ellos. Elija un lugar que no contenga ninguno.</translation>
    </message>
    <message>
        <source>%1 holds a copy of %2 that has not come to its end. Only the same can go on with it; for a copy of %3, choose another place.</source>
        <translation>%1 contiene una copia de %2 que no ha terminado. Solo esa misma puede continuar; para una copia de %3, elija otro lugar.</translation>
    </message>
    <message>
        <source>An earlier copy of these books had not come to its end; this one goes on with it.</source>
        <translation>Una copia anterior de estos libros no había terminado; esta la continúa.</translation>
    </message>
    <message>
        <source>The table %1 cannot be copied: %2</source>
        <translation>La tabla %1 no se puede copiar: %2</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; finds %2 in the copy, and %3 where it comes from.</source>
        <translation>La comprobación «%1» encuentra %2 en la copia y %3 en el origen.</translation>
    </message>
    <message>
        <source>Check &quot;%1&quot;: nothing is wrong on either side.</source>
        <translation>Comprobación «%1»: nada está mal en ninguno de los lados.</translation>
    </message>
    <message>
        <source>Check &quot;%1&quot;: the same on both sides, %2.</source>
        <translation>Comprobación «%1»: lo mismo en ambos lados, %2.</translation>
    </message>
    <message>
        <source>Somebody has written to %1 meanwhile: it is copied once more.</source>
        <translation>Alguien ha escrito entretanto en %1: se copia de nuevo.</translation>
    </message>
    <message>
        <source>The books in %1 have not moved.</source>
        <translation>Los libros de %1 no se han trasladado.</translation>
    </message>
    <message>
        <source>Taken up again; they had moved to %1</source>
        <translation>Retomados; se habían trasladado a %1</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>No se pudo crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>These books (movements: %1, programs that write: %2) will soon be too much for a folder. &quot;Copy Books To...&quot; in Data Options takes them to a server.</source>
        <translation>Estos libros (movimientos: %1, programas que escriben: %2) serán pronto demasiado para una carpeta. «Copiar libros a...» en las opciones de datos los lleva a un servidor.</translation>
    </message>
    <message>
        <source>The server has given %1 up to %2, and the table goes up to %3.</source>
        <translation>El servidor ha asignado %1 hasta %2, y la tabla llega hasta %3.</translation>
    </message>
    <message>
        <source>A document that is posted now lacks its history.</source>
        <translation>A un documento que se contabilice ahora le faltará su historial.</translation>
    </message>
    <message>
        <source>New rows are refused until it has come to that.</source>
        <translation>Se rechazan las filas nuevas hasta que llegue ahí.</translation>
    </message>
    <message>
        <source>Its header is not there, and %n line of it is.</source>
        <translation>Falta su cabecera, pero existe %n línea suya.</translation>
    </message>
    <message>
        <source>Its header is not there, and %n lines of it are.</source>
        <translation>Falta su cabecera, pero existen %n líneas suyas.</translation>
    </message>
    <message>
        <source>%1 has begun it and not saved it, with %n line.</source>
        <translation>%1 lo ha empezado y no lo ha guardado, con %n línea.</translation>
    </message>
    <message>
        <source>%1 has begun it and not saved it, with %n lines.</source>
        <translation>%1 lo ha empezado y no lo ha guardado, con %n líneas.</translation>
    </message>
    <message>
        <source>%n row names the location with the key %1, which is gone.</source>
        <translation>%n fila nombra la ubicación con la clave %1, que ya no existe.</translation>
    </message>
    <message>
        <source>%n rows name the location with the key %1, which is gone.</source>
        <translation>%n filas nombran la ubicación con la clave %1, que ya no existe.</translation>
    </message>
    <message>
        <source>Restore the location from a backup.</source>
        <translation>Recupere la ubicación de una copia de seguridad.</translation>
    </message>
    <message>
        <source>Reports by location show it without a name.</source>
        <translation>Los informes por ubicación la muestran sin nombre.</translation>
    </message>
    <message>
        <source>The stock counts in totals and values, at a location without a name.</source>
        <translation>Las existencias cuentan en totales y valores, en una ubicación sin nombre.</translation>
    </message>
    <message>
        <source>Lists and reports show the record without it.</source>
        <translation>Las listas y los informes muestran el registro sin este dato.</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; finds other things in the copy than where it comes from, as what stands there cannot be kept as it is. Mend this first: %2</source>
        <translation>La comprobación «%1» encuentra en la copia otras cosas que en el origen, porque lo que hay allí no se puede conservar tal cual. Corrija primero esto: %2</translation>
    </message>
    <message>
        <source>Name the file that the backup is to be.</source>
        <translation>Indique el archivo que ha de ser la copia de seguridad.</translation>
    </message>
    <message>
        <source>The books are damaged, so that no sound backup of them can be made. A check of the books tells what is damaged and what mends it.</source>
        <translation>Los libros están dañados, de modo que no se puede hacer una copia de seguridad íntegra de ellos. Una comprobación de los libros dice qué está dañado y qué lo remedia.</translation>
    </message>
    <message>
        <source>%1 is a folder. What is restored is one file, which a backup has made.</source>
        <translation>%1 es una carpeta. Lo que se restaura es un archivo, el que creó una copia de seguridad.</translation>
    </message>
    <message>
        <source>Building the indexes of %1</source>
        <translation>Creando los índices de %1</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>&apos;%1&apos; takes no more than %2 characters, in lines of no more than %3. What has been put in was left out.</source>
        <translation>«%1» no admite más de %2 caracteres, en líneas de %3 como máximo. Se ha omitido lo que se quería insertar.</translation>
    </message>
    <message>
        <source>The list is filtered. Only the rows that it shows are searched.</source>
        <translation>La lista está filtrada. Solo se busca en las filas que muestra.</translation>
    </message>
    <message>
        <source>The filter &apos;%1&apos; no longer fits this list: something that it asks for is gone (%2). You can delete it.</source>
        <translation>El filtro «%1» ya no sirve para esta lista: algo por lo que pregunta ha desaparecido (%2). Puede eliminarlo.</translation>
    </message>
    <message>
        <source>An unexpected failure has stopped this. Nothing is known about its cause.</source>
        <translation>Un fallo inesperado ha detenido la operación. Se desconoce la causa.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no more than %2 characters.</source>
        <translation>«%1» no admite más de %2 caracteres.</translation>
    </message>
    <message>
        <source>This has been cut off: &quot;%1&quot;</source>
        <translation>Se ha recortado esto: «%1»</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not opened: it is neither a web page nor a mail address.</source>
        <translation>No se abre «%1»: no es una página web ni una dirección de correo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: this computer has no program for it.</source>
        <translation>No se puede abrir «%1»: este equipo no tiene ningún programa para ello.</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Ajuste de línea</translation>
    </message>
</context>
<context>
    <name>Data</name>
    <message>
        <source>The configuration of the host application is missing in %1. Open the company in the host application once, or choose another database.</source>
        <translation>Abra la empresa una vez en la aplicación anfitriona o elija otra base de datos: en %1 falta la configuración de la aplicación anfitriona.</translation>
    </message>
    <message>
        <source>Current fiscal year is not yet defined...
See &quot;Your Company&quot;</source>
        <translation>El ejercicio actual aún no está definido...
Vea «Su empresa»</translation>
    </message>
    <message>
        <source>GL Period is prior to current fiscal year 
as defined by &quot;Your Company&quot;</source>
        <translation>El período contable es anterior al ejercicio actual 
definido en «Su empresa»</translation>
    </message>
    <message>
        <source>GL Period is not within allowed range 
as defined by &quot;Your Company&quot;</source>
        <translation>El período contable no está dentro del intervalo permitido 
definido en «Su empresa»</translation>
    </message>
    <message>
        <source>GL Period is not within expected range 
as defined by &quot;Your Company&quot;.</source>
        <translation>El período contable no está dentro del intervalo previsto 
definido en «Su empresa».</translation>
    </message>
    <message>
        <source>Unknown or unexpected database engine error #%1</source>
        <translation>Error desconocido o inesperado n.º %1 del motor de base de datos</translation>
    </message>
    <message>
        <source>%1 table. Another user has the table open in exclusive mode.</source>
        <translation>Tabla %1. Otro usuario tiene la tabla abierta en modo exclusivo.</translation>
    </message>
    <message>
        <source>Cannot get next unique number. (btGetUniqueNumber)</source>
        <translation>No se puede obtener el siguiente número único. (btGetUniqueNumber)</translation>
    </message>
    <message>
        <source>The table %1 is damaged and could not be repaired: %2
Have everybody close the program and try again. If that does not help, restore the last backup.</source>
        <translation>La tabla %1 está dañada y no se ha podido reparar: %2
Haga que todos cierren el programa e inténtelo de nuevo. Si no da resultado, restaure la última copia de seguridad.</translation>
    </message>
    <message>
        <source>Please enter a name for the filter.</source>
        <translation>Escriba un nombre para el filtro.</translation>
    </message>
    <message>
        <source>There is a filter &apos;%1&apos; already. Replace it?</source>
        <translation>Ya existe un filtro «%1». ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Your settings cannot be written. The kept filters stay as they were.</source>
        <translation>No se puede escribir su configuración. Los filtros guardados quedan como estaban.</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Item Numbers</source>
        <translation>Números de artículo</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Tipos de artículo</translation>
    </message>
    <message>
        <source>Your Organization</source>
        <translation>Su organización</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impuestos</translation>
    </message>
    <message>
        <source>Salespeople</source>
        <translation>Vendedores</translation>
    </message>
    <message>
        <source>Adjustment Lines</source>
        <translation>Líneas de ajustes</translation>
    </message>
    <message>
        <source>Adjustments</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Inventory History</source>
        <translation>Historial de inventario</translation>
    </message>
    <message>
        <source>Receipt Lines</source>
        <translation>Líneas de recepciones</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Recepciones</translation>
    </message>
    <message>
        <source>Item Balance</source>
        <translation>Saldo de artículos</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>Vendor Balances</source>
        <translation>Saldos de proveedores</translation>
    </message>
    <message>
        <source>Vendor Contacts</source>
        <translation>Contactos de proveedores</translation>
    </message>
    <message>
        <source>Vendor Numbers</source>
        <translation>Números de proveedor</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Usage Lines</source>
        <translation>Líneas de consumo</translation>
    </message>
    <message>
        <source>Invoice Numbers</source>
        <translation>Números de factura</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Bancos</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>Saved Documents</source>
        <translation>Documentos guardados</translation>
    </message>
    <message>
        <source>Counted Items</source>
        <translation>Artículos contados</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Begun Documents</source>
        <translation>Documentos empezados</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Tipo de artículo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>There is no list &apos;%1&apos; to choose from</source>
        <translation>No hay ninguna lista «%1» para elegir</translation>
    </message>
    <message>
        <source>item numbers</source>
        <translation>números de artículo</translation>
    </message>
    <message>
        <source>keys of items</source>
        <translation>claves de artículos</translation>
    </message>
    <message>
        <source>keys of adjustments</source>
        <translation>claves de ajustes</translation>
    </message>
    <message>
        <source>keys of receipts</source>
        <translation>claves de recepciones</translation>
    </message>
    <message>
        <source>receipt numbers</source>
        <translation>números de recepción</translation>
    </message>
    <message>
        <source>vendor numbers</source>
        <translation>números de proveedor</translation>
    </message>
    <message>
        <source>keys of vendors</source>
        <translation>claves de proveedores</translation>
    </message>
    <message>
        <source>keys of usages</source>
        <translation>claves de consumos</translation>
    </message>
    <message>
        <source>usage numbers</source>
        <translation>números de consumo</translation>
    </message>
    <message>
        <source>The %1 have come to their end: none can be given from %2 on.</source>
        <translation>Se han agotado estos valores: %1. No se puede asignar ninguno a partir de %2.</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>PO Receipt</source>
        <translation>Recepción OC</translation>
    </message>
    <message>
        <source>PO Receipts</source>
        <translation>Recepciones OC</translation>
    </message>
    <message>
        <source>Sale</source>
        <translation>Venta</translation>
    </message>
    <message>
        <source>Mfg Receipt</source>
        <translation>Recepción fabr.</translation>
    </message>
    <message>
        <source>Barcodes</source>
        <translation>Códigos de barras</translation>
    </message>
    <message>
        <source>Data Version</source>
        <translation>Versión de los datos</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>an unnamed user</source>
        <translation>un usuario sin nombre</translation>
    </message>
    <message>
        <source>These books have moved to %1, on %2, by %3. What is open here, %4, is how they stood then: it can be read, and takes no more changes until it is taken up again.</source>
        <translation>Estos libros se trasladaron a %1 el %2, por %3. Lo que está abierto aquí, %4, es como estaban entonces: se puede leer y no admite más cambios hasta que se retome.</translation>
    </message>
    <message>
        <source>%1 holds a copy of %2 that has not come to its end; it was begun on %3 by %4. Have the same copied there once more, which goes on with it, or work with %2.</source>
        <translation>%1 contiene una copia de %2 que no ha terminado; la empezó %4 el %3. Haga copiar lo mismo allí otra vez, lo que la continúa, o trabaje con %2.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Address, second line</source>
        <translation>Dirección, segunda línea</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>Business Phone</source>
        <translation>Teléfono del trabajo</translation>
    </message>
    <message>
        <source>Business Phone 2</source>
        <translation>Teléfono del trabajo 2</translation>
    </message>
    <message>
        <source>Extension 2</source>
        <translation>Extensión 2</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensión</translation>
    </message>
    <message>
        <source>Cellular</source>
        <translation>Móvil</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Costing Method</source>
        <translation>Método de costeo</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Default Description</source>
        <translation>Descripción predet.</translation>
    </message>
    <message>
        <source>Days to due date</source>
        <translation>Días hasta el vencimiento</translation>
    </message>
    <message>
        <source>Discount days</source>
        <translation>Días de descuento</translation>
    </message>
    <message>
        <source>Discount %</source>
        <translation>Descuento %</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Exchange Rate</source>
        <translation>Tipo de cambio</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Año del período</translation>
    </message>
    <message>
        <source>Home Phone</source>
        <translation>Teléfono particular</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>Net days</source>
        <translation>Días netos</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Buscapersonas</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Purchase Order no.</source>
        <translation>N.º orden de compra</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Tasa %</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>N.º de recepción</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Costo estándar</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Suspendido</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Tax Codes</source>
        <translation>Códigos de impuesto</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Impuesto</translation>
    </message>
    <message>
        <source>Tax no.</source>
        <translation>N.º fiscal</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Precio unitario</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>N.º de consumo</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>N.º de proveedor</translation>
    </message>
    <message>
        <source>Web Page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Wgt Avg Cost</source>
        <translation>Costo prom. pond.</translation>
    </message>
    <message>
        <source>Zip Code</source>
        <translation>Cód. postal</translation>
    </message>
    <message>
        <source>quantity, qty, number of units, pieces</source>
        <translation>cantidad, cant, número de unidades, unidades, piezas, quantity, qty, number of units, pieces</translation>
    </message>
    <message>
        <source>description, item description, item name, name</source>
        <translation>descripción, descripción de artículo, nombre de artículo, nombre, description, item description, item name, name</translation>
    </message>
    <message>
        <source>item, item no, item number, no, number, article, article no, sku, code</source>
        <translation>artículo, n.º artículo, n.º de artículo, número de artículo, n.º, número, código de artículo, código, referencia, ref, item, item no, item number, no, number, article, article no, sku, code</translation>
    </message>
    <message>
        <source>standard cost, std cost</source>
        <translation>costo estándar, coste estándar, costo std, standard cost</translation>
    </message>
    <message>
        <source>unit cost, cost, unit price, price</source>
        <translation>costo unitario, coste unitario, costo, coste, costo unit, precio unitario, precio, unit cost, cost, unit price, price</translation>
    </message>
    <message>
        <source>Bringing the table %1 up to date</source>
        <translation>Actualizando la tabla %1</translation>
    </message>
</context>
<context>
    <name>DateDialog</name>
    <message>
        <source>Select a Date</source>
        <translation>Seleccionar una fecha</translation>
    </message>
    <message>
        <source>Select a date:</source>
        <translation>Seleccione una fecha:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DocumentFindScreen</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>DocumentPostScreen</name>
    <message>
        <source>Post</source>
        <translation>Contabilizar</translation>
    </message>
    <message>
        <source>0 document(s) to be posted</source>
        <translation>0 documento(s) por contabilizar</translation>
    </message>
    <message>
        <source>To look at before posting</source>
        <translation>Para revisar antes de contabilizar</translation>
    </message>
    <message>
        <source>Enter or a double click opens the document</source>
        <translation>Intro o un doble clic abre el documento</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>a condition was expected.</source>
        <translation>se esperaba una condición.</translation>
    </message>
    <message>
        <source>these two do not compare with each other.</source>
        <translation>estos dos no se pueden comparar entre sí.</translation>
    </message>
    <message>
        <source>%1 is no condition by itself.</source>
        <translation>%1 no es una condición por sí solo.</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;.</source>
        <translation>no hay ningún campo «%1».</translation>
    </message>
    <message>
        <source>a value was expected, not a condition.</source>
        <translation>se esperaba un valor, no una condición.</translation>
    </message>
    <message>
        <source>this number is too large to calculate with.</source>
        <translation>este número es demasiado grande para calcular con él.</translation>
    </message>
    <message>
        <source>a number was expected.</source>
        <translation>se esperaba un número.</translation>
    </message>
    <message>
        <source>too many figures to calculate with.</source>
        <translation>demasiadas cifras para calcular con ellas.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date (YYYY-MM-DD).</source>
        <translation>«%1» no es una fecha (AAAA-MM-DD).</translation>
    </message>
    <message>
        <source>null compares with = and &lt;&gt; only.</source>
        <translation>null solo se compara con = y &lt;&gt;.</translation>
    </message>
    <message>
        <source>the text is too long to look for.</source>
        <translation>el texto es demasiado largo para buscarlo.</translation>
    </message>
    <message>
        <source>LIKE needs a text field.</source>
        <translation>LIKE necesita un campo de texto.</translation>
    </message>
    <message>
        <source>CONTAINS needs a text field.</source>
        <translation>CONTAINS necesita un campo de texto.</translation>
    </message>
    <message>
        <source>The expression %1 cannot be used. Position %2: %3</source>
        <translation>No se puede usar la expresión %1. Posición %2: %3</translation>
    </message>
    <message>
        <source>this quote is not closed.</source>
        <translation>estas comillas no están cerradas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no meaning here.</source>
        <translation>«%1» no tiene significado aquí.</translation>
    </message>
    <message>
        <source>AND, OR or the end</source>
        <translation>AND, OR o el final</translation>
    </message>
    <message>
        <source>too many levels of parentheses or operations.</source>
        <translation>demasiados niveles de paréntesis u operaciones.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>el final</translation>
    </message>
    <message>
        <source>%1 was expected, but %2 was found.</source>
        <translation>se esperaba %1, pero se ha encontrado %2.</translation>
    </message>
    <message>
        <source>too many conditions.</source>
        <translation>demasiadas condiciones.</translation>
    </message>
    <message>
        <source>a text in quotes</source>
        <translation>un texto entre comillas</translation>
    </message>
    <message>
        <source>a field or a value</source>
        <translation>un campo o un valor</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>sin respuesta en %1 segundos</translation>
    </message>
    <message>
        <source>The %1 asks for the password of the account &quot;%2&quot;, and none has been given. Enter it in the password file of the client library or in PGPASSWORD.</source>
        <translation>Introduzca la contraseña en el archivo de contraseñas de la biblioteca cliente o en PGPASSWORD: la %1 pide la contraseña de la cuenta «%2» y no se ha indicado ninguna.</translation>
    </message>
    <message>
        <source>The connection to the %1 must be encrypted, and could not be (%2). Have TLS set up on the server, or choose another kind of connection in the settings.</source>
        <translation>La conexión con la %1 debe estar cifrada y no ha sido posible (%2). Haga configurar TLS en el servidor o elija otro tipo de conexión en la configuración.</translation>
    </message>
    <message>
        <source>The %1 cannot be reached (%2). Check the address in the settings, the network, and that the server runs.</source>
        <translation>No se puede acceder a la %1 (%2). Compruebe la dirección en la configuración, la red y que el servidor esté en marcha.</translation>
    </message>
    <message>
        <source>No server address has been set. Enter it in the settings.</source>
        <translation>No se ha indicado ninguna dirección de servidor. Introdúzcala en la configuración.</translation>
    </message>
    <message>
        <source>What has been set as the server address is no address. Enter the name or the number of the server alone, without account and password.</source>
        <translation>Lo indicado como dirección del servidor no es una dirección. Introduzca solo el nombre o el número del servidor, sin cuenta ni contraseña.</translation>
    </message>
    <message>
        <source>database &quot;%1&quot; on the server %2</source>
        <translation>base de datos «%1» en el servidor %2</translation>
    </message>
    <message>
        <source>The record exists already (%2).</source>
        <translation>El registro ya existe (%2).</translation>
    </message>
    <message>
        <source>A value does not fit its field (%2).</source>
        <translation>Un valor no cabe en su campo (%2).</translation>
    </message>
    <message>
        <source>The %1 is damaged. Have the table repaired, or restore the last backup. (%2)</source>
        <translation>La %1 está dañada. Haga reparar la tabla o restaure la última copia de seguridad. (%2)</translation>
    </message>
    <message>
        <source>The %1 is being written by another user%3. Try again in a moment.</source>
        <translation>Otro usuario%3 está escribiendo en la %1. Inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>The %1 refuses access: %2. Check the account and its rights.</source>
        <translation>La %1 deniega el acceso: %2. Compruebe la cuenta y sus permisos.</translation>
    </message>
    <message>
        <source>The %1 cannot be opened: %2.</source>
        <translation>No se puede abrir la %1: %2.</translation>
    </message>
    <message>
        <source>A key field is empty (%2).</source>
        <translation>Un campo clave está vacío (%2).</translation>
    </message>
    <message>
        <source>A value is not allowed (%2).</source>
        <translation>Un valor no está permitido (%2).</translation>
    </message>
    <message>
        <source>There is no such table (%2).</source>
        <translation>No existe esa tabla (%2).</translation>
    </message>
    <message>
        <source>There is no such field (%2).</source>
        <translation>No existe ese campo (%2).</translation>
    </message>
    <message>
        <source>The %1 can only be read at the moment (%2).</source>
        <translation>En este momento la %1 solo se puede leer (%2).</translation>
    </message>
    <message>
        <source>The disk of the %1 is full. The changes were undone. Make room and try again.</source>
        <translation>El disco de la %1 está lleno. Los cambios se han deshecho. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The %1 has no room for more users or locks: %2. Try again later.</source>
        <translation>La %1 no admite más usuarios ni bloqueos: %2. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The %1 reports: %2</source>
        <translation>La %1 informa: %2</translation>
    </message>
    <message>
        <source>The connection to the %1 was lost. Nothing that was saved is lost; check the network and repeat the last step.</source>
        <translation>Se ha perdido la conexión con la %1. Nada de lo guardado se ha perdido; compruebe la red y repita el último paso.</translation>
    </message>
    <message>
        <source>An earlier step of the same change has failed.</source>
        <translation>Ha fallado un paso anterior del mismo cambio.</translation>
    </message>
    <message>
        <source>An earlier step of the same change has failed; the changes were undone.</source>
        <translation>Ha fallado un paso anterior del mismo cambio; los cambios se han deshecho.</translation>
    </message>
    <message>
        <source>A text holds a character that cannot be stored.</source>
        <translation>Un texto contiene un carácter que no se puede guardar.</translation>
    </message>
    <message>
        <source>The table is not open.</source>
        <translation>La tabla no está abierta.</translation>
    </message>
    <message>
        <source>A query without key fields cannot be filtered.</source>
        <translation>No se puede filtrar una consulta sin campos clave.</translation>
    </message>
    <message>
        <source>The rows cannot be sorted by %1.</source>
        <translation>No se pueden ordenar las filas por %1.</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>No hay ningún campo «%1».</translation>
    </message>
    <message>
        <source>%1 holds %2, which is too large for an amount.</source>
        <translation>%1 contiene %2, que es demasiado grande para un importe.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; cannot be added: the table is open or has it.</source>
        <translation>No se puede añadir el campo «%1»: la tabla está abierta o ya lo tiene.</translation>
    </message>
    <message>
        <source>The query&apos;s parameter &quot;%1&quot; has no value.</source>
        <translation>El parámetro «%1» de la consulta no tiene valor.</translation>
    </message>
    <message>
        <source>%1 is calculated and cannot be searched for.</source>
        <translation>%1 es un campo calculado y no se puede buscar.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is not being edited.</source>
        <translation>La tabla «%1» no se está modificando.</translation>
    </message>
    <message>
        <source>This record of table &apos;%1&apos;</source>
        <translation>Este registro de la tabla «%1»</translation>
    </message>
    <message>
        <source>%1 was changed by another user while the connection was lost. Cancel, and make your changes again.</source>
        <translation>%1 ha sido modificado por otro usuario mientras la conexión estaba perdida. Cancele y haga de nuevo sus cambios.</translation>
    </message>
    <message>
        <source>%1 follows from other fields.</source>
        <translation>%1 se deduce de otros campos.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is in use by another user%2.</source>
        <translation>La tabla «%1» está en uso por otro usuario%2.</translation>
    </message>
    <message>
        <source>There is no table &apos;%1&apos; in %2.</source>
        <translation>No hay ninguna tabla «%1» en %2.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no index &quot;%2&quot;.</source>
        <translation>La tabla «%1» no tiene ningún índice «%2».</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no order.</source>
        <translation>La tabla «%1» no tiene orden.</translation>
    </message>
    <message>
        <source>The order of table &apos;%1&apos; has only %2 fields.</source>
        <translation>El orden de la tabla «%1» tiene solo %2 campos.</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; must have a value</source>
        <translation>El campo «%1» debe tener un valor</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; already has a record with this key.</source>
        <translation>La tabla «%1» ya tiene un registro con esta clave.</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; already exists in table &apos;%3&apos;.</source>
        <translation>%1 «%2» ya existe en la tabla «%3».</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no record to delete.</source>
        <translation>La tabla «%1» no tiene ningún registro que eliminar.</translation>
    </message>
    <message>
        <source>A record of table &apos;%1&apos;</source>
        <translation>Un registro de la tabla «%1»</translation>
    </message>
    <message>
        <source>A database in memory has one connection only.</source>
        <translation>Una base de datos en memoria solo tiene una conexión.</translation>
    </message>
    <message>
        <source>No database folder has been set. Choose the folder in the settings.</source>
        <translation>No se ha indicado ninguna carpeta de base de datos. Elija la carpeta en la configuración.</translation>
    </message>
    <message>
        <source>The database folder %1 does not exist or cannot be reached. Check the settings and the network.</source>
        <translation>La carpeta de base de datos %1 no existe o no es accesible. Compruebe la configuración y la red.</translation>
    </message>
    <message>
        <source>You have no right to enter the database folder %1. Ask its owner for access.</source>
        <translation>No tiene permiso para entrar en la carpeta de base de datos %1. Pida acceso a su propietario.</translation>
    </message>
    <message>
        <source>%1 is damaged. Have the table repaired, or restore the last backup.</source>
        <translation>Base de datos dañada: %1. Haga reparar la tabla o restaure la última copia de seguridad.</translation>
    </message>
    <message>
        <source>The disk of %1 is full. The changes were undone. Make room and try again.</source>
        <translation>El disco de %1 está lleno. Los cambios se han deshecho. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 cannot be written. Check the permissions of the file and of its folder.</source>
        <translation>No se puede escribir en %1. Compruebe los permisos del archivo y de su carpeta.</translation>
    </message>
    <message>
        <source>A value is too long (%2).</source>
        <translation>Un valor es demasiado largo (%2).</translation>
    </message>
    <message>
        <source>%1 is being read or written by another user. Try again in a moment.</source>
        <translation>Otro usuario está leyendo o escribiendo %1. Inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>%1 is in use by this program at the moment. Try again. (%2)</source>
        <translation>Este programa está usando %1 en este momento. Inténtelo de nuevo. (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read or written (%2). Check the disk or the network folder.</source>
        <translation>No se ha podido leer o escribir %1 (%2). Compruebe el disco o la carpeta de red.</translation>
    </message>
    <message>
        <source>%1 is not a database. Check the database folder, or restore the last backup.</source>
        <translation>%1 no es una base de datos. Compruebe la carpeta de base de datos o restaure la última copia de seguridad.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Check that the folder exists and that you may write in it.</source>
        <translation>No se puede abrir %1. Compruebe que la carpeta exista y que usted pueda escribir en ella.</translation>
    </message>
    <message>
        <source>The database in memory</source>
        <translation>La base de datos en memoria</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1 has no table &quot;%2&quot;.</source>
        <translation>%1 no tiene ninguna tabla «%2».</translation>
    </message>
    <message>
        <source>The lock file %1 has been deleted or replaced while it was in use. Nothing can be saved any more: close the program and open it anew.</source>
        <translation>Cierre el programa y ábralo de nuevo: ya no se puede guardar nada. El archivo de bloqueo %1 se ha eliminado o reemplazado mientras estaba en uso.</translation>
    </message>
    <message>
        <source>%1: the index %2 has %3 of %4 rows</source>
        <translation>%1: el índice %2 tiene %3 de %4 filas</translation>
    </message>
    <message>
        <source>The file %1 has a second name (a hard link). Two users who open it by different names would destroy each other&apos;s work. Remove the other name, or put a copy of the file in its place.</source>
        <translation>El archivo %1 tiene un segundo nombre (un enlace físico). Quite el otro nombre o ponga una copia del archivo en su lugar: dos usuarios que lo abrieran con nombres distintos destruirían el trabajo del otro.</translation>
    </message>
    <message>
        <source>The file %1 has been deleted, moved or replaced while it was in use. Nothing can be saved any more: close the program and open it anew.</source>
        <translation>Cierre el programa y ábralo de nuevo: ya no se puede guardar nada. El archivo %1 se ha eliminado, movido o reemplazado mientras estaba en uso.</translation>
    </message>
    <message>
        <source>%1 has undone the changes by itself. Try again.</source>
        <translation>%1 ha deshecho los cambios por su cuenta. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>another user</source>
        <translation>otro usuario</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1, desde %2</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be used (%2).</source>
        <translation>No se puede usar el archivo de bloqueo %1 (%2).</translation>
    </message>
    <message>
        <source>%1 cannot be used: a name in this path is not UTF-8. Rename the folder.</source>
        <translation>No se puede usar %1: un nombre de esta ruta no está en UTF-8. Cambie el nombre de la carpeta.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, or no file at all. Remove it while nobody uses the database, and open the program anew.</source>
        <translation>El archivo de bloqueo %1 es un enlace o no es un archivo. Elimínelo mientras nadie use la base de datos y abra de nuevo el programa.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be written (%2). Check the permissions of the file and of its folder.</source>
        <translation>No se puede escribir el archivo de bloqueo %1 (%2). Compruebe los permisos del archivo y de su carpeta.</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (proceso %2)</translation>
    </message>
    <message>
        <source>%1 is being edited in another window. Finish there first.</source>
        <translation>%1 se está modificando en otra ventana. Termine allí primero.</translation>
    </message>
    <message>
        <source>%1 is being edited by another user%2. Try again in a moment.</source>
        <translation>%1 está siendo modificado por otro usuario%2. Inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>%1 was deleted by another user.</source>
        <translation>%1 ha sido eliminado por otro usuario.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is open elsewhere and cannot be changed now. Have everybody close it and try again.</source>
        <translation>La tabla «%1» está abierta en otro lugar y ahora no se puede modificar. Haga que todos la cierren e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Another user%2 has table &apos;%1&apos; open in exclusive mode.</source>
        <translation>Otro usuario%2 tiene la tabla «%1» abierta en modo exclusivo.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is locked by another user%2. Try again in a moment.</source>
        <translation>La tabla «%1» está bloqueada por otro usuario%2. Inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>An amount of money is too large.</source>
        <translation>Un importe es demasiado grande.</translation>
    </message>
    <message>
        <source>%1: a text of more than %2 characters is not taken</source>
        <translation>%1: no se admite un texto de más de %2 caracteres</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is longer than %n character</source>
        <translation>%1: «%2» tiene más de %n carácter</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is longer than %n characters</source>
        <translation>%1: «%2» tiene más de %n caracteres</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2</source>
        <translation>«%1» no es %2</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un número entero</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not within %2 to %3</source>
        <translation>«%1» no está entre %2 y %3</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>un valor verdadero o falso</translation>
    </message>
    <message>
        <source>a date (YYYY-MM-DD)</source>
        <translation>una fecha (AAAA-MM-DD)</translation>
    </message>
    <message>
        <source>a date and time (YYYY-MM-DD HH:MM:SS)</source>
        <translation>una fecha y hora (AAAA-MM-DD HH:MM:SS)</translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; holds a character that cannot be stored.</source>
        <translation>El texto «%1» contiene un carácter que no se puede guardar.</translation>
    </message>
    <message>
        <source>These books have moved to %1. Here they can be read, and take no more changes until they are taken up again.</source>
        <translation>Estos libros se han trasladado a %1. Aquí se pueden leer y no admiten más cambios hasta que se retomen.</translation>
    </message>
    <message>
        <source>There is no %1. Check the settings, or make a new company.</source>
        <translation>No existe %1. Compruebe la configuración o cree una empresa nueva.</translation>
    </message>
    <message>
        <source>There is no database %1 in %2. Check the folder in the settings, or make a new company.</source>
        <translation>No hay ninguna base de datos %1 en %2. Compruebe la carpeta en la configuración o cree una empresa nueva.</translation>
    </message>
    <message>
        <source>The %1 has given the session to somebody else (%2). If a pooler stands between, have it keep sessions (pgbouncer: pool_mode = session).</source>
        <translation>%1 ha dado la sesión a otra persona (%2). Si hay un agrupador de conexiones en medio, haga que conserve las sesiones (pgbouncer: pool_mode = session).</translation>
    </message>
    <message>
        <source>Between this program and the %1 stands a pooler that gives every transaction another session. Locks would keep nobody out. Have it keep sessions for this database (pgbouncer: pool_mode = session).</source>
        <translation>Entre este programa y %1 hay un agrupador de conexiones que da otra sesión a cada transacción. Los bloqueos no detendrían a nadie. Haga que conserve las sesiones para esta base de datos (pgbouncer: pool_mode = session).</translation>
    </message>
    <message>
        <source>The connection to the %1 was lost while changes were being saved, and it could not be found out whether they were. Look whether they are there before you repeat them.</source>
        <translation>La conexión con %1 se perdió mientras se guardaban cambios y no se pudo averiguar si quedaron guardados. Compruebe si están antes de repetirlos.</translation>
    </message>
    <message>
        <source>The former connection has not ended yet.</source>
        <translation>La conexión anterior todavía no ha terminado.</translation>
    </message>
    <message>
        <source>The connection was lost while %1 was being saved. Save it again.</source>
        <translation>La conexión se perdió mientras se guardaba %1. Guárdelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 is being written to by another user (%2). Try again in a moment.</source>
        <translation>Otro usuario (%2) está escribiendo en %1. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>%1 is a file. Name the folder that holds the database.</source>
        <translation>%1 es un archivo. Indique la carpeta que contiene la base de datos.</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Frame</name>
    <message>
        <source>Not available in this version</source>
        <translation>No disponible en esta versión</translation>
    </message>
    <message>
        <source>%1 (not available in this version)</source>
        <translation>%1 (no disponible en esta versión)</translation>
    </message>
    <message>
        <source>Receive Inventory</source>
        <translation>Recibir inventario</translation>
    </message>
    <message>
        <source>Enter inventory receipts</source>
        <translation>Introducir recepciones de inventario</translation>
    </message>
    <message>
        <source>Post Receipts</source>
        <translation>Contabilizar recepciones</translation>
    </message>
    <message>
        <source>Post inventory receipts</source>
        <translation>Contabilizar recepciones de inventario</translation>
    </message>
    <message>
        <source>Enter Inventory</source>
        <translation>Introducir recuento</translation>
    </message>
    <message>
        <source>Enter inventory and calculate usage</source>
        <translation>Introducir el inventario contado y calcular el consumo</translation>
    </message>
    <message>
        <source>Edit Usage</source>
        <translation>Editar consumo</translation>
    </message>
    <message>
        <source>Edit usage records</source>
        <translation>Editar registros de consumo</translation>
    </message>
    <message>
        <source>Post Usage</source>
        <translation>Contabilizar consumo</translation>
    </message>
    <message>
        <source>Enter Inventory Adjustments</source>
        <translation>Introducir ajustes de inventario</translation>
    </message>
    <message>
        <source>Enter inventory adjustments</source>
        <translation>Introducir ajustes de inventario</translation>
    </message>
    <message>
        <source>Post Adustments</source>
        <translation>Contabilizar ajustes</translation>
    </message>
    <message>
        <source>Post inventory adjustments</source>
        <translation>Contabilizar ajustes de inventario</translation>
    </message>
    <message>
        <source>Print Reports...</source>
        <translation>Imprimir informes...</translation>
    </message>
    <message>
        <source>Print inventory reports</source>
        <translation>Imprimir informes de inventario</translation>
    </message>
    <message>
        <source>Blank Inventory Form</source>
        <translation>Formulario de inventario en blanco</translation>
    </message>
    <message>
        <source>Edit Organization Setup</source>
        <translation>Editar datos de la organización</translation>
    </message>
    <message>
        <source>View Totals</source>
        <translation>Ver totales</translation>
    </message>
    <message>
        <source>View History</source>
        <translation>Ver historial</translation>
    </message>
    <message>
        <source>View Stock As Of</source>
        <translation>Ver existencias a fecha</translation>
    </message>
    <message>
        <source>The stock as it was at the end of a day or period</source>
        <translation>Las existencias al final de un día o período</translation>
    </message>
    <message>
        <source>View What to Buy</source>
        <translation>Ver qué comprar</translation>
    </message>
    <message>
        <source>What has been used and will not last, by vendor</source>
        <translation>Lo que se ha consumido y no alcanzará, por proveedor</translation>
    </message>
    <message>
        <source>Month End</source>
        <translation>Cierre de mes</translation>
    </message>
    <message>
        <source>What is to be done before the next period is opened</source>
        <translation>Lo que hay que hacer antes de abrir el período siguiente</translation>
    </message>
    <message>
        <source>Check Books</source>
        <translation>Comprobar libros</translation>
    </message>
    <message>
        <source>Whether the books are sound, and what mends them</source>
        <translation>Si los libros están en orden y cómo se corrigen</translation>
    </message>
    <message>
        <source>Back Up...</source>
        <translation>Copia de seguridad...</translation>
    </message>
    <message>
        <source>A copy of the whole database in one file</source>
        <translation>Una copia de toda la base de datos en un archivo</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Restaurar...</translation>
    </message>
    <message>
        <source>A backup back, into a folder or a server without a database</source>
        <translation>Recuperar una copia de seguridad en una carpeta o un servidor sin base de datos</translation>
    </message>
    <message>
        <source>Audit List</source>
        <translation>Lista de auditoría</translation>
    </message>
    <message>
        <source>Who has deleted, repaired or restored what, and when</source>
        <translation>Quién ha eliminado, reparado o restaurado qué, y cuándo</translation>
    </message>
    <message>
        <source>Synchronize Locations</source>
        <translation>Sincronizar ubicaciones</translation>
    </message>
    <message>
        <source>Synchronize Items</source>
        <translation>Sincronizar artículos</translation>
    </message>
    <message>
        <source>Synchronize Clients</source>
        <translation>Sincronizar clientes</translation>
    </message>
    <message>
        <source>Print Payments</source>
        <translation>Imprimir pagos</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>not posted</source>
        <translation>sin contabilizar</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Últimos abiertos</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>The manual, %1, was not found in %2.</source>
        <translation>No se ha encontrado el manual, %1, en %2.</translation>
    </message>
    <message>
        <source>The manual, %1, could not be opened: %2</source>
        <translation>No se ha podido abrir el manual, %1: %2</translation>
    </message>
    <message>
        <source>Succesfully completed the synchronization.</source>
        <translation>La sincronización ha terminado correctamente.</translation>
    </message>
    <message>
        <source>Insert any Corvane locations into the 
Ledgerwick locations table?</source>
        <translation>¿Desea insertar las ubicaciones de Corvane en la 
tabla de ubicaciones de Ledgerwick?</translation>
    </message>
    <message>
        <source>Inventory Usage</source>
        <translation>Consumo de inventario</translation>
    </message>
    <message>
        <source>Inventory Totals</source>
        <translation>Totales de inventario</translation>
    </message>
    <message>
        <source>Inventory History</source>
        <translation>Historial de inventario</translation>
    </message>
    <message>
        <source>First Steps</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>What new books need, and how far you are</source>
        <translation>Lo que necesitan unos libros nuevos y hasta dónde ha llegado</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Server %1</source>
        <translation>Servidor %1</translation>
    </message>
    <message>
        <source>Corvane client billing, with the inventory module.</source>
        <translation>Facturación a clientes Corvane, con el módulo de inventario.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Muestra este texto.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>Loads the inventory module from this file.</source>
        <translation>Carga el módulo de inventario de este archivo.</translation>
    </message>
    <message>
        <source>Works as this user instead of the login name.</source>
        <translation>Trabaja como este usuario en lugar del nombre de inicio de sesión.</translation>
    </message>
    <message>
        <source>Uses the company database in this folder from now on.</source>
        <translation>Usa desde ahora la base de datos de la empresa que está en esta carpeta.</translation>
    </message>
    <message>
        <source>Opens the inventory at once.</source>
        <translation>Abre el inventario de inmediato.</translation>
    </message>
    <message>
        <source>Is light, dark or as the desktop is. The environment variable TALLYMERE_LOOK says the same for whoever gives no option.</source>
        <translation>Es light, dark o como el escritorio. La variable de entorno TALLYMERE_LOOK indica lo mismo cuando no se da ninguna opción.</translation>
    </message>
    <message>
        <source>Unknown argument: %1</source>
        <translation>Argumento desconocido: %1</translation>
    </message>
    <message>
        <source>There is no look %1. It is light, dark or desktop.</source>
        <translation>No existe el aspecto %1. Debe ser light, dark o desktop.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>No existe la carpeta %1.</translation>
    </message>
    <message>
        <source>The inventory module cannot be loaded: there is no file %1.</source>
        <translation>No se puede cargar el módulo de inventario: no existe el archivo %1.</translation>
    </message>
    <message>
        <source>The inventory module cannot be loaded: %1</source>
        <translation>No se puede cargar el módulo de inventario: %1</translation>
    </message>
    <message>
        <source>%1 is not an inventory module: it lacks the entry points of one.</source>
        <translation>%1 no es un módulo de inventario: le faltan los puntos de entrada.</translation>
    </message>
    <message>
        <source>The module does not offer the form TFormTallymereSystem.</source>
        <translation>El módulo no ofrece el formulario TFormTallymereSystem.</translation>
    </message>
    <message>
        <source>The form TFormTallymereSystem cannot be driven by this host.</source>
        <translation>Este anfitrión no puede manejar el formulario TFormTallymereSystem.</translation>
    </message>
    <message>
        <source>%1 is not an inventory module.</source>
        <translation>%1 no es un módulo de inventario.</translation>
    </message>
    <message>
        <source>The inventory module %1 is of release %2, and this program of %3. Install both of one release.</source>
        <translation>Instale ambos de la misma versión: el módulo de inventario %1 es de la versión %2 y este programa es de la %3.</translation>
    </message>
    <message>
        <source>There are no books of a company in %1.</source>
        <translation>No hay libros de una empresa en %1.</translation>
    </message>
    <message>
        <source>The database in %1 is not that of a company.</source>
        <translation>La base de datos de %1 no es la de una empresa.</translation>
    </message>
    <message>
        <source>Sample Company</source>
        <translation>Empresa de ejemplo</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>a count</source>
        <translation>un recuento</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; was not found</source>
        <translation>No se ha encontrado el artículo «%1»</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; has been suspended and is not counted</source>
        <translation>El artículo «%1» está suspendido y no se cuenta</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; is of a type without inventory and is not counted</source>
        <translation>El artículo «%1» es de un tipo sin inventario y no se cuenta</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; is not among those that are counted at this location</source>
        <translation>El artículo «%1» no está entre los que se cuentan en esta ubicación</translation>
    </message>
    <message>
        <source>An item number is needed</source>
        <translation>Se necesita un número de artículo</translation>
    </message>
    <message>
        <source>A quantity is needed for the item &apos;%1&apos;</source>
        <translation>Se necesita una cantidad para el artículo «%1»</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; has been counted in an earlier row</source>
        <translation>El artículo «%1» ya se ha contado en una fila anterior</translation>
    </message>
    <message>
        <source>The column &apos;%1&apos; is set by the system and cannot be imported.</source>
        <translation>La columna «%1» la establece el sistema y no se puede importar.</translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos; in %2.</source>
        <translation>No hay ninguna columna «%1» en %2.</translation>
    </message>
    <message>
        <source>The column &apos;%1&apos; is there twice.</source>
        <translation>La columna «%1» aparece dos veces.</translation>
    </message>
    <message>
        <source>The columns &apos;%1&apos; and &apos;%2&apos; say the same thing; leave one out.</source>
        <translation>Quite una de las columnas «%1» y «%2»: indican lo mismo.</translation>
    </message>
    <message>
        <source>The column %1 is missing.</source>
        <translation>Falta la columna %1.</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <source>The header has %n field, this row %1.</source>
        <translation>La cabecera tiene %n campo; esta fila, %1.</translation>
    </message>
    <message>
        <source>The header has %n fields, this row %1.</source>
        <translation>La cabecera tiene %n campos; esta fila, %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Location &apos;%1&apos; not found</source>
        <translation>No se ha encontrado la ubicación «%1»</translation>
    </message>
    <message>
        <source>is infinite</source>
        <translation>es infinito</translation>
    </message>
    <message>
        <source>is not a number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>está fuera del intervalo permitido</translation>
    </message>
    <message>
        <source>is not a whole number</source>
        <translation>no es un número entero</translation>
    </message>
    <message>
        <source>is not within %1 to %2</source>
        <translation>no está entre %1 y %2</translation>
    </message>
    <message>
        <source>is not a year of two or four digits</source>
        <translation>no es un año de dos o cuatro cifras</translation>
    </message>
    <message>
        <source>is not a date (YYYY-MM-DD)</source>
        <translation>no es una fecha (AAAA-MM-DD)</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>no es un valor verdadero ni falso</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>is longer than %n character</source>
        <translation>tiene más de %n carácter</translation>
    </message>
    <message>
        <source>is longer than %n characters</source>
        <translation>tiene más de %n caracteres</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; is there more than once; give %3 instead</source>
        <translation>%1 «%2» aparece más de una vez; indique %3 en su lugar</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is used by now: %2. Nothing was taken back.</source>
        <translation>«%1» ya está en uso: %2. No se ha deshecho nada.</translation>
    </message>
    <message>
        <source>Of what was imported, something has been deleted since. Nothing was taken back.</source>
        <translation>Desde la importación se ha eliminado algo de lo importado. No se ha deshecho nada.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been changed, used or posted since it was imported. Nothing was taken back.</source>
        <translation>«%1» se ha modificado, usado o contabilizado desde que se importó. No se ha deshecho nada.</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>No se ha podido leer el archivo %1: %2</translation>
    </message>
    <message>
        <source>%1, row %2: %3</source>
        <translation>%1, fila %2: %3</translation>
    </message>
    <message>
        <source>Nothing stands in the sheet from that row on.</source>
        <translation>La hoja no contiene nada a partir de esa fila.</translation>
    </message>
    <message>
        <source>No column is taken.</source>
        <translation>No se toma ninguna columna.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>El archivo supera los %1 MB.</translation>
    </message>
    <message>
        <source>The file is neither a spreadsheet (XLSX, ODS) nor CSV.</source>
        <translation>El archivo no es una hoja de cálculo (XLSX, ODS) ni CSV.</translation>
    </message>
    <message>
        <source>The file is a spreadsheet of an older format or protected by a password. Save it as XLSX, ODS or CSV without a password.</source>
        <translation>Guarde el archivo como XLSX, ODS o CSV sin contraseña: es una hoja de cálculo de un formato antiguo o protegida con contraseña.</translation>
    </message>
    <message>
        <source>There is no sheet &apos;%1&apos; in a CSV file.</source>
        <translation>No hay ninguna hoja «%1» en un archivo CSV.</translation>
    </message>
    <message>
        <source>The file is protected by a password. Save it without one.</source>
        <translation>Guarde el archivo sin contraseña: está protegido con una.</translation>
    </message>
    <message>
        <source>The cell %1 shows an error: %2</source>
        <translation>La celda %1 muestra un error: %2</translation>
    </message>
    <message>
        <source>The file is no proper spreadsheet: it declares a document type.</source>
        <translation>El archivo no es una hoja de cálculo correcta: declara un tipo de documento.</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>El archivo está dañado: %1</translation>
    </message>
    <message>
        <source>The file is no proper spreadsheet: its elements are nested too deep.</source>
        <translation>El archivo no es una hoja de cálculo correcta: sus elementos están anidados a demasiada profundidad.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Spreadsheets and CSV files</source>
        <translation>Hojas de cálculo y archivos CSV</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>%n record was imported.</source>
        <translation>Se ha importado %n registro.</translation>
    </message>
    <message>
        <source>%n records were imported.</source>
        <translation>Se han importado %n registros.</translation>
    </message>
    <message>
        <source>Nothing has been imported into this list since the program was started.</source>
        <translation>No se ha importado nada en esta lista desde que se inició el programa.</translation>
    </message>
    <message>
        <source>Take back the %n record that was imported?</source>
        <translation>¿Desea deshacer la importación de %n registro?</translation>
    </message>
    <message>
        <source>Take back the %n records that were imported?</source>
        <translation>¿Desea deshacer la importación de %n registros?</translation>
    </message>
    <message>
        <source>Taking back the import</source>
        <translation>Deshaciendo la importación</translation>
    </message>
    <message>
        <source>There is no sheet in the file.</source>
        <translation>No hay ninguna hoja en el archivo.</translation>
    </message>
    <message>
        <source>There is no sheet &apos;%1&apos;, but: %2</source>
        <translation>No existe la hoja «%1», pero sí: %2</translation>
    </message>
    <message>
        <source>The sheet has more than %1 rows.</source>
        <translation>La hoja tiene más de %1 filas.</translation>
    </message>
    <message>
        <source>The sheet has more than %1 columns.</source>
        <translation>La hoja tiene más de %1 columnas.</translation>
    </message>
    <message>
        <source>The cell %1 stands under no heading.</source>
        <translation>La celda %1 no está bajo ningún encabezado.</translation>
    </message>
    <message>
        <source>The texts of the file are longer than %1 million characters.</source>
        <translation>Los textos del archivo superan los %1 millones de caracteres.</translation>
    </message>
    <message>
        <source>The formula in %1 has no stored result. Open the file in a spreadsheet program and save it.</source>
        <translation>Abra el archivo en un programa de hojas de cálculo y guárdelo: la fórmula de %1 no tiene resultado guardado.</translation>
    </message>
    <message>
        <source>The file is damaged and could not be unpacked: %1</source>
        <translation>El archivo está dañado y no se ha podido descomprimir: %1</translation>
    </message>
    <message>
        <source>The file holds more than %1 MB when it is unpacked, and is not read any further.</source>
        <translation>El archivo ocupa más de %1 MB descomprimido y no se sigue leyendo.</translation>
    </message>
    <message>
        <source>The file holds a text that is longer than any cell may hold.</source>
        <translation>El archivo contiene un texto más largo de lo que admite una celda.</translation>
    </message>
    <message>
        <source>The file is no proper spreadsheet: an element has too many attributes.</source>
        <translation>El archivo no es una hoja de cálculo correcta: un elemento tiene demasiados atributos.</translation>
    </message>
    <message>
        <source>The file is damaged: a text is missing.</source>
        <translation>El archivo está dañado: falta un texto.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>true</source>
        <translation>verdadero</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falso</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Save for an Import</source>
        <translation>Guardar para importar</translation>
    </message>
    <message>
        <source>XLSX files</source>
        <translation>Archivos XLSX</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>%n document was imported.</source>
        <translation>Se ha importado %n documento.</translation>
    </message>
    <message>
        <source>%n documents were imported.</source>
        <translation>Se han importado %n documentos.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos; to leave out.</source>
        <translation>No hay ninguna columna &apos;%1&apos; que dejar fuera.</translation>
    </message>
    <message>
        <source>There is only %n row, so that row %1 cannot hold the names of the columns.</source>
        <translation>Solo hay %n fila, así que la fila %1 no puede contener los nombres de las columnas.</translation>
    </message>
    <message>
        <source>There are only %n rows, so that row %1 cannot hold the names of the columns.</source>
        <translation>Solo hay %n filas, así que la fila %1 no puede contener los nombres de las columnas.</translation>
    </message>
</context>
<context>
    <name>Insight</name>
    <message>
        <source>A quantity to buy cannot be below zero</source>
        <translation>Una cantidad por comprar no puede ser menor que cero</translation>
    </message>
    <message>
        <source>There is nothing to buy of this vendor: no item has a quantity</source>
        <translation>No hay nada que comprar a este proveedor: ningún artículo tiene cantidad</translation>
    </message>
    <message>
        <source>Item not found</source>
        <translation>No se ha encontrado el artículo</translation>
    </message>
    <message>
        <source>Nothing has been received: the cost was set by hand</source>
        <translation>No se ha recibido nada: el costo se fijó a mano</translation>
    </message>
    <message>
        <source>Nothing has been received</source>
        <translation>No se ha recibido nada</translation>
    </message>
    <message>
        <source>What the receipts come to is the average cost of the item</source>
        <translation>El resultado de las recepciones es el costo promedio del artículo</translation>
    </message>
    <message>
        <source>The average cost was set by hand, before the first receipt or later</source>
        <translation>El costo promedio se fijó a mano, antes de la primera recepción o más tarde</translation>
    </message>
    <message>
        <source>The receipts come to %1: the average cost was set by hand after &quot;%2&quot;</source>
        <translation>Las recepciones dan %1: el costo promedio se fijó a mano después de «%2»</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>%1 (%2 of %3 items)</source>
        <translation>%1 (%2 de %3 artículos)</translation>
    </message>
    <message>
        <source>Not counted: %1</source>
        <translation>Sin contar: %1</translation>
    </message>
    <message>
        <source>Counted: %1</source>
        <translation>Contadas: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>The value is that of this moment: print or save it before anything of the next period is posted.</source>
        <translation>Imprima o guarde el valor antes de contabilizar algo del período siguiente: es el de este momento.</translation>
    </message>
    <message>
        <source>The organization sets no default period, so that new documents take the month of the day. There is no period to open.</source>
        <translation>La organización no tiene período predeterminado, por lo que los documentos nuevos toman el mes de su fecha. No hay ningún período que abrir.</translation>
    </message>
    <message>
        <source>The default period is %1 by now: somebody has moved it meanwhile.</source>
        <translation>El período predeterminado ya es %1: alguien lo ha cambiado entretanto.</translation>
    </message>
    <message>
        <source>Period %1 cannot be opened, as its documents would be refused: %2</source>
        <translation>No se puede abrir el período %1, ya que sus documentos se rechazarían: %2</translation>
    </message>
    <message>
        <source>Locations counted</source>
        <translation>Ubicaciones contadas</translation>
    </message>
    <message>
        <source>Count...</source>
        <translation>Contar...</translation>
    </message>
    <message>
        <source>Value printed</source>
        <translation>Valor impreso</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Line %1 cannot be bought: %2</source>
        <translation>La línea %1 no se puede comprar: %2</translation>
    </message>
    <message>
        <source>Use has to be looked at over a week at least</source>
        <translation>El consumo debe observarse durante una semana como mínimo</translation>
    </message>
    <message>
        <source>Period %1 opened after %2.</source>
        <translation>Período %1 abierto después de %2.</translation>
    </message>
    <message>
        <source>None of the item types is kept in stock: tick Inventory in one of them.</source>
        <translation>Ninguno de los tipos de artículo se mantiene en inventario: marque «Inventario» en uno de ellos.</translation>
    </message>
    <message>
        <source>The receipt of what is there is waiting to be posted.</source>
        <translation>La recepción de lo que hay está pendiente de contabilizar.</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>Introducir a mano</translation>
    </message>
    <message>
        <source>From a Spreadsheet...</source>
        <translation>Desde una hoja de cálculo...</translation>
    </message>
    <message>
        <source>Fiscal year and period</source>
        <translation>Ejercicio y período</translation>
    </message>
    <message>
        <source>When your year begins, and the period that new documents go into.</source>
        <translation>Cuándo empieza su ejercicio y a qué período van los documentos nuevos.</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>The rooms and shelves where stock is kept, each counted by itself.</source>
        <translation>Las salas y estantes donde se guardan las existencias; cada uno se cuenta por separado.</translation>
    </message>
    <message>
        <source>Item types</source>
        <translation>Tipos de artículo</translation>
    </message>
    <message>
        <source>Kinds of goods, such as produce or packing; each says how its items are costed.</source>
        <translation>Clases de mercancía, como verduras o envases; cada una indica cómo se costean sus artículos.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>The goods themselves, with their numbers, units and types.</source>
        <translation>Las mercancías mismas, con sus números, unidades y tipos.</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>Whom goods are received from.</source>
        <translation>De quién se recibe la mercancía.</translation>
    </message>
    <message>
        <source>First count</source>
        <translation>Primer recuento</translation>
    </message>
    <message>
        <source>What is on the shelves: counted on a form, entered as a receipt with its costs, posted.</source>
        <translation>Lo que hay en los estantes: contado en un formulario, introducido como recepción con sus costos y contabilizado.</translation>
    </message>
    <message>
        <source>Blank Form...</source>
        <translation>Formulario en blanco...</translation>
    </message>
    <message>
        <source>As a Receipt</source>
        <translation>Como recepción</translation>
    </message>
    <message>
        <source>Up to which period documents are taken stands in Edit, Other, Organization Setup.</source>
        <translation>Hasta qué periodo se aceptan documentos está en Editar, Otros, Datos de la organización.</translation>
    </message>
    <message>
        <source>the end of period %1</source>
        <translation>final del período %1</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Last saved by: %1</source>
        <translation>Guardado por última vez por: %1</translation>
    </message>
    <message>
        <source>%1. New in the list asks whether to go on.</source>
        <translation>%1. Con Nuevo, la lista pregunta si desea continuar.</translation>
    </message>
    <message>
        <source>today</source>
        <translation>hoy</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>ayer</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>No backup of this database is known.</source>
        <translation>No se conoce ninguna copia de seguridad de esta base de datos.</translation>
    </message>
    <message>
        <source>%1, by %2</source>
        <translation>%1, por %2</translation>
    </message>
    <message>
        <source>Below zero</source>
        <translation>Existencias negativas</translation>
    </message>
    <message>
        <source>Begun, not saved</source>
        <translation>Empezados sin guardar</translation>
    </message>
    <message>
        <source>Counts begun</source>
        <translation>Recuentos empezados</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copia de seguridad</translation>
    </message>
</context>
<context>
    <name>ItemBarcodesDialog</name>
    <message>
        <source>Barcodes</source>
        <translation>Códigos de barras</translation>
    </message>
    <message>
        <source>&amp;Barcode:</source>
        <translation>Código de &amp;barras:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>KeptFiltersDialog</name>
    <message>
        <source>Kept Filters</source>
        <translation>Filtros guardados</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar nomb&amp;re</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Filtros guardados</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Master</name>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>New Bank</source>
        <translation>Nuevo banco</translation>
    </message>
    <message>
        <source>Field &apos;Bank Name&apos; must have a value</source>
        <translation>El campo «Nombre del banco» debe tener un valor</translation>
    </message>
    <message>
        <source>Field &apos;Currency&apos; must have a value</source>
        <translation>El campo «Moneda» debe tener un valor</translation>
    </message>
    <message>
        <source>Currency no longer exists</source>
        <translation>La moneda ya no existe</translation>
    </message>
    <message>
        <source>Currency &apos;%1&apos; not found</source>
        <translation>No se ha encontrado la moneda «%1»</translation>
    </message>
    <message>
        <source>Bank already exists</source>
        <translation>El banco ya existe</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Bancos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>AP cheque(s) exist for this bank</source>
        <translation>Existen cheques de cuentas por pagar de este banco</translation>
    </message>
    <message>
        <source>AR payment(s) exist for this bank</source>
        <translation>Existen pagos de cuentas por cobrar de este banco</translation>
    </message>
    <message>
        <source>Edit Banks</source>
        <translation>Editar bancos</translation>
    </message>
    <message>
        <source>Current Fiscal Year invalid...
Enter year as 2 digits</source>
        <translation>Ejercicio actual no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Default Period invalid...
Enter year as 2 digits</source>
        <translation>Período predeterminado no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Warn Before Period invalid...
Enter year as 2 digits</source>
        <translation>Período «Advertir si antes de» no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Warn After Period invalid...
Enter year as 2 digits</source>
        <translation>Período «Advertir si después de» no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Error Before Period invalid...
Enter year as 2 digits</source>
        <translation>Período «Error si antes de» no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Error After Period invalid...
Enter year as 2 digits</source>
        <translation>Período «Error si después de» no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Default Period</source>
        <translation>Período predeterminado</translation>
    </message>
    <message>
        <source>Warn if before</source>
        <translation>Advertir si antes de</translation>
    </message>
    <message>
        <source>Warn if after</source>
        <translation>Advertir si después de</translation>
    </message>
    <message>
        <source>Error if before</source>
        <translation>Error si antes de</translation>
    </message>
    <message>
        <source>Error if after</source>
        <translation>Error si después de</translation>
    </message>
    <message>
        <source>Default Days in which invoice is due</source>
        <translation>Días predeterminados de vencimiento de la factura</translation>
    </message>
    <message>
        <source>Fiscal Year must be between 1989 and 2050</source>
        <translation>El ejercicio debe estar entre 1989 y 2050</translation>
    </message>
    <message>
        <source>Your Organization</source>
        <translation>Su organización</translation>
    </message>
    <message>
        <source>Field &apos;Company Name&apos; must have a value</source>
        <translation>El campo «Nombre de la empresa» debe tener un valor</translation>
    </message>
    <message>
        <source>New Currency</source>
        <translation>Nueva moneda</translation>
    </message>
    <message>
        <source>Field &apos;Currency Name&apos; must have a value</source>
        <translation>El campo «Nombre de la moneda» debe tener un valor</translation>
    </message>
    <message>
        <source>Currency already exists</source>
        <translation>La moneda ya existe</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <source>Exchange Rate</source>
        <translation>Tipo de cambio</translation>
    </message>
    <message>
        <source>Bank(s) exist for this currency</source>
        <translation>Existen bancos con esta moneda</translation>
    </message>
    <message>
        <source>Vendor(s) exist for this currency</source>
        <translation>Existen proveedores con esta moneda</translation>
    </message>
    <message>
        <source>Customer(s) exist for this currency</source>
        <translation>Existen clientes con esta moneda</translation>
    </message>
    <message>
        <source>Edit Currencies</source>
        <translation>Editar monedas</translation>
    </message>
    <message>
        <source>The port cannot be saved: %1 cannot be written.</source>
        <translation>No se puede guardar el puerto: no se puede escribir %1.</translation>
    </message>
    <message>
        <source>Unable to dial number.</source>
        <translation>No se puede marcar el número.</translation>
    </message>
    <message>
        <source>Unable to open %1</source>
        <translation>No se puede abrir %1</translation>
    </message>
    <message>
        <source>Pick up the phone.
Click OK after dialing has completed.</source>
        <translation>Descuelgue el teléfono.
Haga clic en Aceptar cuando haya terminado la marcación.</translation>
    </message>
    <message>
        <source>There is no number left for %n new record.</source>
        <translation>No queda ningún número para %n registro nuevo.</translation>
    </message>
    <message>
        <source>There are not enough numbers left for %n new records.</source>
        <translation>No quedan números suficientes para %n registros nuevos.</translation>
    </message>
    <message>
        <source>Tax Codes</source>
        <translation>Códigos de impuesto</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Nuevo artículo</translation>
    </message>
    <message>
        <source>New (copied) Item</source>
        <translation>Nuevo artículo (copiado)</translation>
    </message>
    <message>
        <source>Field &apos;Item no.&apos; must have a value</source>
        <translation>El campo «N.º de artículo» debe tener un valor</translation>
    </message>
    <message>
        <source>Field &apos;Description&apos; must have a value</source>
        <translation>El campo «Descripción» debe tener un valor</translation>
    </message>
    <message>
        <source>Field &apos;Item Type&apos; must have a value</source>
        <translation>El campo «Tipo de artículo» debe tener un valor</translation>
    </message>
    <message>
        <source>Item Type no longer exists</source>
        <translation>El tipo de artículo ya no existe</translation>
    </message>
    <message>
        <source>Item type &apos;%1&apos; not found</source>
        <translation>No se ha encontrado el tipo de artículo «%1»</translation>
    </message>
    <message>
        <source>Item no. already exists</source>
        <translation>El n.º de artículo ya existe</translation>
    </message>
    <message>
        <source>Item no. &apos;%1&apos; not found</source>
        <translation>No se ha encontrado el n.º de artículo «%1»</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Precio unitario</translation>
    </message>
    <message>
        <source>&amp;Item no.</source>
        <translation>&amp;N.º de artículo</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Descripción</translation>
    </message>
    <message>
        <source>Edit Items</source>
        <translation>Editar artículos</translation>
    </message>
    <message>
        <source>The items are in use by another user%1. Nothing has been changed; try again in a moment.</source>
        <translation>Inténtelo de nuevo dentro de un momento: otro usuario%1 está usando los artículos. No se ha modificado nada.</translation>
    </message>
    <message>
        <source>Item %1 &quot;%2&quot;</source>
        <translation>Artículo %1 «%2»</translation>
    </message>
    <message>
        <source>The price of the host&apos;s item %1 is too large.</source>
        <translation>El precio del artículo %1 de la aplicación anfitriona es demasiado grande.</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Tipo de artículo</translation>
    </message>
    <message>
        <source>New Item Type</source>
        <translation>Nuevo tipo de artículo</translation>
    </message>
    <message>
        <source>Field &apos;Type Name&apos; must have a value</source>
        <translation>El campo «Nombre del tipo» debe tener un valor</translation>
    </message>
    <message>
        <source>Item Type already exists</source>
        <translation>El tipo de artículo ya existe</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Tipos de artículo</translation>
    </message>
    <message>
        <source>System-defined Item Types can&apos;t be deleted!</source>
        <translation>Los tipos de artículo definidos por el sistema no se pueden eliminar</translation>
    </message>
    <message>
        <source>Item(s) exist for this item type</source>
        <translation>Existen artículos de este tipo</translation>
    </message>
    <message>
        <source>Edit Item Types</source>
        <translation>Editar tipos de artículo</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>New Location</source>
        <translation>Nueva ubicación</translation>
    </message>
    <message>
        <source>Field &apos;Location Name&apos; must have a value</source>
        <translation>El campo «Nombre de la ubicación» debe tener un valor</translation>
    </message>
    <message>
        <source>That Location already exists</source>
        <translation>Esa ubicación ya existe</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>History exists for this location</source>
        <translation>Existe historial de esta ubicación</translation>
    </message>
    <message>
        <source>Receipts exist for this location</source>
        <translation>Existen recepciones de esta ubicación</translation>
    </message>
    <message>
        <source>Adjustments exist for this location</source>
        <translation>Existen ajustes de esta ubicación</translation>
    </message>
    <message>
        <source>Edit Locations</source>
        <translation>Editar ubicaciones</translation>
    </message>
    <message>
        <source>The locations are in use by another user%1. Nothing has been changed; try again in a moment.</source>
        <translation>Inténtelo de nuevo dentro de un momento: otro usuario%1 está usando las ubicaciones. No se ha modificado nada.</translation>
    </message>
    <message>
        <source>Location %1 &quot;%2&quot;</source>
        <translation>Ubicación %1 «%2»</translation>
    </message>
    <message>
        <source>Delete &apos;%1&apos;?</source>
        <translation>¿Desea eliminar «%1»?</translation>
    </message>
    <message>
        <source>Unable to delete &apos;%1&apos;...</source>
        <translation>No se puede eliminar «%1»...</translation>
    </message>
    <message>
        <source>&apos;%1&apos; not found</source>
        <translation>No se ha encontrado «%1»</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Impuesto</translation>
    </message>
    <message>
        <source>New Tax</source>
        <translation>Nuevo impuesto</translation>
    </message>
    <message>
        <source>Field &apos;Tax Name&apos; must have a value</source>
        <translation>El campo «Nombre del impuesto» debe tener un valor</translation>
    </message>
    <message>
        <source>Field &apos;Code&apos; must have a value</source>
        <translation>El campo «Código» debe tener un valor</translation>
    </message>
    <message>
        <source>Field &apos;Rate&apos; must have a value</source>
        <translation>El campo «Tasa» debe tener un valor</translation>
    </message>
    <message>
        <source>Tax already exists</source>
        <translation>El impuesto ya existe</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impuestos</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Tasa</translation>
    </message>
    <message>
        <source>Unable to delete tax &apos;%1&apos;...</source>
        <translation>No se puede eliminar el impuesto «%1»...</translation>
    </message>
    <message>
        <source>Customer(s) exist for this tax</source>
        <translation>Existen clientes con este impuesto</translation>
    </message>
    <message>
        <source>Invoice(s) exist for this tax</source>
        <translation>Existen facturas con este impuesto</translation>
    </message>
    <message>
        <source>Edit Taxes</source>
        <translation>Editar impuestos</translation>
    </message>
    <message>
        <source>Field &apos;Contact Name&apos; must have a value</source>
        <translation>El campo «Nombre del contacto» debe tener un valor</translation>
    </message>
    <message>
        <source>Vendor Contact</source>
        <translation>Contacto de proveedor</translation>
    </message>
    <message>
        <source>New Contact</source>
        <translation>Nuevo contacto</translation>
    </message>
    <message>
        <source>Field &apos;Vendor&apos; must have a value</source>
        <translation>El campo «Proveedor» debe tener un valor</translation>
    </message>
    <message>
        <source>Vendor no longer exists</source>
        <translation>El proveedor ya no existe</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Apellidos</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Cargo</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Currency cannot be changed... 
Invoice(s) already exist</source>
        <translation>No se puede cambiar la moneda... 
Ya existen facturas</translation>
    </message>
    <message>
        <source>Discount %</source>
        <translation>Descuento %</translation>
    </message>
    <message>
        <source>Discount days</source>
        <translation>Días de descuento</translation>
    </message>
    <message>
        <source>Net days</source>
        <translation>Días netos</translation>
    </message>
    <message>
        <source>Default number of days to due date</source>
        <translation>Número predeterminado de días hasta el vencimiento</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Field &apos;Vendor no.&apos; must have a value</source>
        <translation>El campo «N.º de proveedor» debe tener un valor</translation>
    </message>
    <message>
        <source>Field &apos;Vendor Name&apos; must have a value</source>
        <translation>El campo «Nombre del proveedor» debe tener un valor</translation>
    </message>
    <message>
        <source>Vendor no. already exists</source>
        <translation>El n.º de proveedor ya existe</translation>
    </message>
    <message>
        <source>Vendor no. &apos;%1&apos; not found</source>
        <translation>No se ha encontrado el n.º de proveedor «%1»</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>N.º prov.</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>&amp;Vendor no.</source>
        <translation>N.º de &amp;proveedor</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Edit Vendors</source>
        <translation>Editar proveedores</translation>
    </message>
    <message>
        <source>Year End: Permanently close %1?

GL balances have been carried forward, etc. so you can now print financial statements for %2.  You can leave %1 open if there will be more transactions.</source>
        <translation>Cierre del ejercicio: ¿desea cerrar %1 definitivamente?

Los saldos contables ya se han traspasado, etc., de modo que ahora puede imprimir los estados financieros de %2.  Puede dejar abierto %1 si habrá más movimientos.</translation>
    </message>
    <message>
        <source>Scan or type the code first.</source>
        <translation>Escanee o escriba primero el código.</translation>
    </message>
    <message>
        <source>A code has %1 letters at most.</source>
        <translation>Un código tiene %1 caracteres como máximo.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the item no. of &apos;%2&apos;.</source>
        <translation>«%1» es el n.º de artículo de «%2».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a code of &apos;%2&apos;. Take it out there first.</source>
        <translation>Quite primero «%1» de «%2»: es un código de ese artículo.</translation>
    </message>
    <message>
        <source>The item is not there any more.</source>
        <translation>El artículo ya no existe.</translation>
    </message>
    <message>
        <source>Another user has added a code at the same moment. Try again.</source>
        <translation>Inténtelo de nuevo: otro usuario ha añadido un código en el mismo momento.</translation>
    </message>
    <message>
        <source>Keep the code &apos;%1&apos; for &apos;%2&apos;, so that it is known from now on?</source>
        <translation>¿Desea guardar el código «%1» para «%2», de modo que se reconozca desde ahora?</translation>
    </message>
    <message>
        <source>No item has the code &apos;%1&apos;. Do you want to look for the item?</source>
        <translation>Ningún artículo tiene el código «%1». ¿Desea buscar el artículo?</translation>
    </message>
</context>
<context>
    <name>PhoneCount</name>
    <message>
        <source>No certificate could be made, without which nothing is sent to a phone.</source>
        <translation>No se ha podido crear un certificado, sin el cual no se envía nada a un teléfono.</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Recuento</translation>
    </message>
    <message>
        <source>Who is counting?</source>
        <translation>¿Quién cuenta?</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Number, description or barcode</source>
        <translation>Número, descripción o código de barras</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Escanear</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>%1 of %2 counted</source>
        <translation>%1 de %2 contados</translation>
    </message>
    <message>
        <source>All sent</source>
        <translation>Todo enviado</translation>
    </message>
    <message>
        <source>Waiting: %1</source>
        <translation>En espera: %1</translation>
    </message>
    <message>
        <source>To be answered: %1</source>
        <translation>Por responder: %1</translation>
    </message>
    <message>
        <source>No connection. What you type is kept on this phone and sent later.</source>
        <translation>Sin conexión. Lo que escriba se guarda en este teléfono y se envía más tarde.</translation>
    </message>
    <message>
        <source>The count has been closed at the computer. What has not been sent is kept on this phone: ask for a new link there.</source>
        <translation>Pida un enlace nuevo en el equipo: allí se ha cerrado el recuento. Lo que no se ha enviado se guarda en este teléfono.</translation>
    </message>
    <message>
        <source>This browser keeps nothing. Do not close the page before all has been sent.</source>
        <translation>No cierre la página hasta que se haya enviado todo: este navegador no guarda nada.</translation>
    </message>
    <message>
        <source>Recorded: %1</source>
        <translation>Registrado: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>At the computer</source>
        <translation>En el equipo</translation>
    </message>
    <message>
        <source>Not sent yet</source>
        <translation>Aún sin enviar</translation>
    </message>
    <message>
        <source>The computer takes it in a moment</source>
        <translation>El equipo lo recibe en un momento</translation>
    </message>
    <message>
        <source>%1 has counted %2. You have typed %3.</source>
        <translation>%1 ha contado %2. Usted ha escrito %3.</translation>
    </message>
    <message>
        <source>The count of this item has been taken back. You have typed %1.</source>
        <translation>Se ha retirado el recuento de este artículo. Usted ha escrito %1.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Dejarlo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Retirar</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in the list</source>
        <translation>«%1» no está en la lista</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Cantidad de %1</translation>
    </message>
    <message>
        <source>Not sent of another count of %1: %2</source>
        <translation>Sin enviar de otro recuento de %1: %2</translation>
    </message>
    <message>
        <source>Send to this count</source>
        <translation>Enviar a este recuento</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>The camera cannot be used.</source>
        <translation>No se puede usar la cámara.</translation>
    </message>
    <message>
        <source>No page can be served at %1: %2</source>
        <translation>No se puede ofrecer ninguna página en %1: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number.</source>
        <translation>«%1» no es un número.</translation>
    </message>
    <message>
        <source>This item is not in the list any more.</source>
        <translation>Este artículo ya no está en la lista.</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>No hay nada que mostrar.</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuación)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>The pages of the report cannot be kept in &apos;%1&apos;...
%2</source>
        <translation>No se pueden conservar en «%1» las páginas del informe...
%2</translation>
    </message>
    <message>
        <source>The report was not printed: the printer &apos;%1&apos; cannot be found any more.</source>
        <translation>El informe no se ha impreso: ya no se encuentra la impresora «%1».</translation>
    </message>
    <message>
        <source>The report was not printed: %1</source>
        <translation>El informe no se ha impreso: %1</translation>
    </message>
    <message>
        <source>A total of the report &apos;%1&apos; is beyond what an amount of money can be</source>
        <translation>Un total del informe «%1» supera lo que puede ser un importe</translation>
    </message>
    <message>
        <source>The report cannot be printed: its pages could not be made to the end.</source>
        <translation>No se puede imprimir el informe: sus páginas no se han podido generar hasta el final.</translation>
    </message>
    <message>
        <source>The report cannot be printed: the printer or the file takes nothing.</source>
        <translation>No se puede imprimir el informe: la impresora o el archivo no admite datos.</translation>
    </message>
    <message>
        <source>Page %1 cannot be printed.</source>
        <translation>No se puede imprimir la página %1.</translation>
    </message>
    <message>
        <source>The report could not be printed to its end.</source>
        <translation>No se ha podido imprimir el informe hasta el final.</translation>
    </message>
    <message>
        <source>The report cannot be kept in &apos;%1&apos; until it is printed...
%2</source>
        <translation>No se puede conservar el informe en «%1» hasta que se imprima...
%2</translation>
    </message>
</context>
<context>
    <name>RecordFindScreen</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Item No</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Prior Quantity</source>
        <translation>Cant. anterior</translation>
    </message>
    <message>
        <source>Current Quantity</source>
        <translation>Cant. actual</translation>
    </message>
    <message>
        <source>There are unposted transactions for this location: prior quantities will change.</source>
        <translation>Esta ubicación tiene movimientos sin contabilizar: las cantidades anteriores cambiarán.</translation>
    </message>
    <message>
        <source>Choose the location that is counted.</source>
        <translation>Elija la ubicación que se cuenta.</translation>
    </message>
    <message>
        <source>Blank Inventory Form</source>
        <translation>Formulario de inventario en blanco</translation>
    </message>
    <message>
        <source>Counted by:</source>
        <translation>Contado por:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>Tipo %1</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Sin tipo</translation>
    </message>
    <message>
        <source>%1. Average cost: %2</source>
        <translation>%1. Costo promedio: %2</translation>
    </message>
    <message>
        <source>Why This Cost</source>
        <translation>Por qué este costo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Recepción</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>On hand before</source>
        <translation>Exist. antes</translation>
    </message>
    <message>
        <source>Cost before</source>
        <translation>Costo antes</translation>
    </message>
    <message>
        <source>On hand after</source>
        <translation>Exist. después</translation>
    </message>
    <message>
        <source>Cost after</source>
        <translation>Costo después</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Posted</source>
        <translation>Contab.</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Tipos de artículo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Precio unitario</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Impuesto</translation>
    </message>
    <message>
        <source>Wgt Av Cost</source>
        <translation>Costo prom. pond.</translation>
    </message>
    <message>
        <source>Stnd Cost</source>
        <translation>Costo estánd.</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>N.º prov.</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Inventory Receipts</source>
        <translation>Recepciones de inventario</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>N.º recep.</translation>
    </message>
    <message>
        <source>PO</source>
        <translation>OC</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Inventory Usage</source>
        <translation>Consumo de inventario</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>N.º consumo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Inventory Adjustments</source>
        <translation>Ajustes de inventario</translation>
    </message>
    <message>
        <source>Inventory History</source>
        <translation>Historial de inventario</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Inventory Totals</source>
        <translation>Totales de inventario</translation>
    </message>
    <message>
        <source>Quantity On Hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Audit List</source>
        <translation>Lista de auditoría</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Qué se hizo</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>There is no location %1</source>
        <translation>No existe la ubicación %1</translation>
    </message>
    <message>
        <source>There is no item type %1</source>
        <translation>No existe el tipo de artículo %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Ubicación: %1</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Tipo: %1</translation>
    </message>
    <message>
        <source>Period: %1/%2</source>
        <translation>Período: %1/%2</translation>
    </message>
    <message>
        <source>Printed at %1 %2</source>
        <translation>Impreso el %1 %2</translation>
    </message>
    <message>
        <source>Opening Balance:</source>
        <translation>Saldo inicial:</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Opening Balance</source>
        <translation>Saldo inicial</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Recepciones</translation>
    </message>
    <message>
        <source>Adjustments</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Ventas</translation>
    </message>
    <message>
        <source>Closing Balance</source>
        <translation>Saldo final</translation>
    </message>
    <message>
        <source>Closing balance %1</source>
        <translation>Saldo final %1</translation>
    </message>
    <message>
        <source>Perpetual by Item</source>
        <translation>Permanente por artículo</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Item</source>
        <translation>Inventario permanente por artículo</translation>
    </message>
    <message>
        <source>Perpetual by Item /Location</source>
        <translation>Permanente por artículo/ubicación</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Item /Location</source>
        <translation>Inventario permanente por artículo/ubicación</translation>
    </message>
    <message>
        <source>Perpetual by Type /Item</source>
        <translation>Permanente por tipo/artículo</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Type /Item</source>
        <translation>Inventario permanente por tipo/artículo</translation>
    </message>
    <message>
        <source>Perpetual by Type /Item /Location</source>
        <translation>Permanente por tipo/artículo/ubicación</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Type /Item /Location</source>
        <translation>Inventario permanente por tipo/artículo/ubicación</translation>
    </message>
    <message>
        <source>Perpetual Summary by Item</source>
        <translation>Permanente resumido por artículo</translation>
    </message>
    <message>
        <source>Perpetual Inventory Summary by Item</source>
        <translation>Resumen de inventario permanente por artículo</translation>
    </message>
    <message>
        <source>Perpetual Summary by Type /Item</source>
        <translation>Permanente resumido por tipo/artículo</translation>
    </message>
    <message>
        <source>Perpetual Inventory Summary by Type /Item</source>
        <translation>Resumen de inventario permanente por tipo/artículo</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Enter the period that the report begins with, 1 to 12.</source>
        <translation>Introduzca el período con que empieza el informe, de 1 a 12.</translation>
    </message>
    <message>
        <source>Enter the fiscal year of the period, in two or four digits.</source>
        <translation>Introduzca el ejercicio del período, con dos o cuatro cifras.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a year of two or four digits</source>
        <translation>«%1» no es un año de dos o cuatro cifras</translation>
    </message>
    <message>
        <source>The report &apos;%1&apos; has nothing to show yet.</source>
        <translation>El informe «%1» aún no tiene nada que mostrar.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Archivos PDF</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Guardar como CSV</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Archivos CSV</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>As of %1</source>
        <translation>Fecha: %1</translation>
    </message>
    <message>
        <source>The value is that of the quantity then at what a unit costs now.</source>
        <translation>El valor es el de la cantidad de entonces a lo que cuesta ahora una unidad.</translation>
    </message>
    <message>
        <source>Stock as of</source>
        <translation>Existencias a fecha</translation>
    </message>
    <message>
        <source>Quantity then</source>
        <translation>Cant. entonces</translation>
    </message>
    <message>
        <source>At today&apos;s cost</source>
        <translation>Al costo de hoy</translation>
    </message>
    <message>
        <source>Location %1</source>
        <translation>Ubicación %1</translation>
    </message>
    <message>
        <source>No location</source>
        <translation>Sin ubicación</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>By the use of %1 weeks, to last %2 weeks</source>
        <translation>Según el consumo de %1 semanas, para que alcance %2 semanas</translation>
    </message>
    <message>
        <source>What to buy</source>
        <translation>Qué comprar</translation>
    </message>
    <message>
        <source>Use a week</source>
        <translation>Cons. semanal</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Unposted</source>
        <translation>Sin contab.</translation>
    </message>
    <message>
        <source>Days left</source>
        <translation>Días rest.</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Propuesto</translation>
    </message>
    <message>
        <source>Last cost</source>
        <translation>Últ. costo</translation>
    </message>
    <message>
        <source>No vendor yet</source>
        <translation>Aún sin proveedor</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Inventory %1</source>
        <translation>Inventario: %1</translation>
    </message>
    <message>
        <source>Value by Item</source>
        <translation>Valor por artículo</translation>
    </message>
    <message>
        <source>Value by Item /Location</source>
        <translation>Valor por artículo/ubicación</translation>
    </message>
    <message>
        <source>Value by Type /Item</source>
        <translation>Valor por tipo/artículo</translation>
    </message>
    <message>
        <source>Value by Type</source>
        <translation>Valor por tipo</translation>
    </message>
    <message>
        <source>Inventory Value by Type</source>
        <translation>Valor de inventario por tipo</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Tipo de artículo</translation>
    </message>
    <message>
        <source>Value by Type /Item /Location</source>
        <translation>Valor por tipo/artículo/ubicación</translation>
    </message>
    <message>
        <source>Value by GL Account /Item</source>
        <translation>Valor por cuenta contable/artículo</translation>
    </message>
    <message>
        <source>Account %1</source>
        <translation>Cuenta %1</translation>
    </message>
    <message>
        <source>No account</source>
        <translation>Sin cuenta</translation>
    </message>
    <message>
        <source>Cost per Meal</source>
        <translation>Costo por comida</translation>
    </message>
    <message>
        <source>The value of item &apos;%1&apos; is beyond what an amount of money can be</source>
        <translation>El valor del artículo «%1» supera lo que puede ser un importe</translation>
    </message>
    <message>
        <source>Save as XLSX</source>
        <translation>Guardar como XLSX</translation>
    </message>
    <message>
        <source>XLSX files</source>
        <translation>Archivos XLSX</translation>
    </message>
    <message>
        <source>Day concerned</source>
        <translation>Día afectado</translation>
    </message>
    <message>
        <source>There is no report %1</source>
        <translation>No hay ningún informe %1</translation>
    </message>
</context>
<context>
    <name>Sample</name>
    <message>
        <source>The sample file %1 is missing from the program.</source>
        <translation>Falta en el programa el archivo de ejemplo %1.</translation>
    </message>
    <message>
        <source>The sample kitchen does not fit into this database: %1 (%2.csv, line %3)</source>
        <translation>La cocina de ejemplo no cabe en esta base de datos: %1 (%2.csv, línea %3)</translation>
    </message>
    <message>
        <source>The sample kitchen goes into a new database only: table &apos;%1&apos; holds rows already.</source>
        <translation>La cocina de ejemplo solo entra en una base de datos nueva: la tabla «%1» ya contiene filas.</translation>
    </message>
    <message>
        <source>The sample kitchen counts in US $, but the home currency of this database is %1. Make a database with the postal format USA.</source>
        <translation>La cocina de ejemplo cuenta en US $, pero la moneda local de esta base de datos es %1. Cree una base de datos con el formato postal USA.</translation>
    </message>
</context>
<context>
    <name>StockTimeDialog</name>
    <message>
        <source>Stock As Of</source>
        <translation>Existencias a fecha</translation>
    </message>
    <message>
        <source>At the end of the &amp;day:</source>
        <translation>Al final del &amp;día:</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>At the end of the &amp;period:</source>
        <translation>Al final del &amp;período:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Year of the period</source>
        <translation>Año del período</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TFormBlankInventoryReportSelection</name>
    <message>
        <source>Blank Inventory Form</source>
        <translation>Formulario de inventario en blanco</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>By &amp;category</source>
        <translation>Por &amp;categoría</translation>
    </message>
    <message>
        <source>Each category on a &amp;new page</source>
        <translation>Cada categoría en una &amp;página nueva</translation>
    </message>
    <message>
        <source>By &amp;item number</source>
        <translation>Por &amp;número de artículo</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Include &amp;Zero Count Items</source>
        <translation>Incluir artículos con recuento c&amp;ero</translation>
    </message>
    <message>
        <source>P&amp;rior quantities (leave out for a blind count)</source>
        <translation>Cantidades an&amp;teriores (omitir en un recuento a ciegas)</translation>
    </message>
    <message>
        <source>&amp;Barcodes of the item numbers</source>
        <translation>Códigos de &amp;barras de los números de artículo</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Guardar como</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>&amp;Mostrar en pantalla</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TFormEnterInventory</name>
    <message>
        <source>Enter Inventory</source>
        <translation>Introducir recuento</translation>
    </message>
    <message>
        <source>Select the &amp;Location for the inventory:</source>
        <translation>Seleccione la &amp;ubicación del inventario:</translation>
    </message>
    <message>
        <source>Select the &amp;Date of the inventory</source>
        <translation>Seleccione la &amp;fecha del inventario</translation>
    </message>
    <message>
        <source>Hides what the books hold until the count has been calculated</source>
        <translation>Oculta lo que indican los libros hasta que se calcule el recuento</translation>
    </message>
    <message>
        <source>&amp;Blind</source>
        <translation>A cie&amp;gas</translation>
    </message>
    <message>
        <source>Include Items with no inventory</source>
        <translation>Incluir artículos sin inventario</translation>
    </message>
    <message>
        <source>Include &amp;Zero Count Items</source>
        <translation>Incluir artículos con recuento c&amp;ero</translation>
    </message>
    <message>
        <source>Inventory &amp;Items and Quantities</source>
        <translation>Artículos y cantidades del &amp;inventario</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Buscar por:</translation>
    </message>
    <message>
        <source>&amp;for:</source>
        <translation>&amp;texto:</translation>
    </message>
    <message>
        <source>Inventory Items and Quantities</source>
        <translation>Artículos y cantidades del inventario</translation>
    </message>
    <message>
        <source>Diff&amp;erences...</source>
        <translation>&amp;Diferencias...</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Calculate usage</source>
        <translation>Calcular consumo</translation>
    </message>
    <message>
        <source>Count on a &amp;Phone...</source>
        <translation>Contar con te&amp;léfono...</translation>
    </message>
    <message>
        <source>Serves the list of this location to phones on the local network until the count is closed</source>
        <translation>Ofrece la lista de esta ubicación a los teléfonos de la red local hasta que se cierre el recuento</translation>
    </message>
</context>
<context>
    <name>Tallymere::AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>Acerca de Corvane</translation>
    </message>
    <message>
        <source>For those who help you, a report can be copied.</source>
        <translation>Puede copiar un informe para quienes le ayuden.</translation>
    </message>
    <message>
        <source>Corvane Client Billing</source>
        <translation>Facturación a clientes Corvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>The inventory module is loaded.</source>
        <translation>El módulo de inventario está cargado.</translation>
    </message>
    <message>
        <source>The inventory module is not loaded.</source>
        <translation>El módulo de inventario no está cargado.</translation>
    </message>
    <message>
        <source>Store: %1</source>
        <translation>Almacenamiento: %1</translation>
    </message>
    <message>
        <source>Data version: %1</source>
        <translation>Versión de los datos: %1</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Copiar in&amp;forme</translation>
    </message>
    <message>
        <source>Copied. The report holds versions, no figures and no names.</source>
        <translation>Copiado. El informe contiene versiones, ninguna cifra y ningún nombre.</translation>
    </message>
</context>
<context>
    <name>Tallymere::BuyingGrid</name>
    <message>
        <source>To buy</source>
        <translation>Por comprar</translation>
    </message>
</context>
<context>
    <name>Tallymere::BuyingModel</name>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Use a week</source>
        <translation>Cons. semanal</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Unposted</source>
        <translation>Sin contab.</translation>
    </message>
    <message>
        <source>Days left</source>
        <translation>Días rest.</translation>
    </message>
    <message>
        <source>Last cost</source>
        <translation>Últ. costo</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Propuesto</translation>
    </message>
    <message>
        <source>To buy</source>
        <translation>Por comprar</translation>
    </message>
    <message>
        <source>No vendor yet</source>
        <translation>Aún sin proveedor</translation>
    </message>
</context>
<context>
    <name>Tallymere::CompanyBox</name>
    <message>
        <source>New Company</source>
        <translation>Empresa nueva</translation>
    </message>
    <message>
        <source>&amp;Name of the company:</source>
        <translation>&amp;Nombre de la empresa:</translation>
    </message>
    <message>
        <source>&amp;Postal format:</source>
        <translation>Formato &amp;postal:</translation>
    </message>
    <message>
        <source>The format of addresses, and the currency that the books begin with</source>
        <translation>El formato de las direcciones y la moneda con la que empiezan los libros</translation>
    </message>
    <message>
        <source>In a &amp;folder:</source>
        <translation>En una &amp;carpeta:</translation>
    </message>
    <message>
        <source>Folder of the books</source>
        <translation>Carpeta de los libros</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>On a &amp;server:</source>
        <translation>En un &amp;servidor:</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Link to the server</source>
        <translation>Conexión con el servidor</translation>
    </message>
    <message>
        <source>A PostgreSQL server. The database there is called corvane; whoever looks after the server has set up its account.</source>
        <translation>Un servidor PostgreSQL. La base de datos se llama allí corvane; quien administra el servidor ha creado su cuenta.</translation>
    </message>
    <message>
        <source>&amp;Try the Connection</source>
        <translation>&amp;Probar la conexión</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open Company</source>
        <translation>Abrir empresa</translation>
    </message>
    <message>
        <source>Where are its books to be kept?</source>
        <translation>¿Dónde se guardarán sus libros?</translation>
    </message>
    <message>
        <source>Where are the books of the company?</source>
        <translation>¿Dónde están los libros de la empresa?</translation>
    </message>
    <message>
        <source>&amp;Make Company</source>
        <translation>C&amp;rear empresa</translation>
    </message>
    <message>
        <source>United States (US $)</source>
        <translation>Estados Unidos (US $)</translation>
    </message>
    <message>
        <source>Canada (Canadian $)</source>
        <translation>Canadá ($ canadiense)</translation>
    </message>
    <message>
        <source>United Kingdom (Pounds)</source>
        <translation>Reino Unido (libras)</translation>
    </message>
    <message>
        <source>Another country (its own currency)</source>
        <translation>Otro país (su propia moneda)</translation>
    </message>
    <message>
        <source>Folder for the Books</source>
        <translation>Carpeta para los libros</translation>
    </message>
    <message>
        <source>Folder with the Books</source>
        <translation>Carpeta con los libros</translation>
    </message>
    <message>
        <source>Choose the folder of the books.</source>
        <translation>Elija la carpeta de los libros.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Introduzca la dirección del servidor.</translation>
    </message>
    <message>
        <source>Looking for books</source>
        <translation>Buscando libros</translation>
    </message>
    <message>
        <source>There are no books yet in %1. They can be made there.</source>
        <translation>Todavía no hay libros en %1. Se pueden crear allí.</translation>
    </message>
    <message>
        <source>There are no books of a company in %1.</source>
        <translation>No hay libros de una empresa en %1.</translation>
    </message>
    <message>
        <source>There are books already: those of %1.</source>
        <translation>Ya hay libros: los de %1.</translation>
    </message>
    <message>
        <source>Enter the name of the company.</source>
        <translation>Introduzca el nombre de la empresa.</translation>
    </message>
    <message>
        <source>There are no books of a company in %1. New Company makes some there.</source>
        <translation>No hay libros de una empresa en %1. «Empresa nueva» crea unos allí.</translation>
    </message>
    <message>
        <source>The books of %1 are in %2 already. Open these instead?</source>
        <translation>Los libros de %1 ya están en %2. ¿Abrir esos en su lugar?</translation>
    </message>
    <message>
        <source>Making the books of %1</source>
        <translation>Creando los libros de %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::CountGrid</name>
    <message>
        <source>Current Quantity</source>
        <translation>Cantidad actual</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Costo estándar</translation>
    </message>
</context>
<context>
    <name>Tallymere::CountModel</name>
    <message>
        <source>Item No</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Costo estándar</translation>
    </message>
    <message>
        <source>Prior Quantity</source>
        <translation>Cant. anterior</translation>
    </message>
    <message>
        <source>Current Quantity</source>
        <translation>Cantidad actual</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>Counted by %1, %2</source>
        <translation>Contado por %1, %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::CountSearch</name>
    <message>
        <source>%1 is not taken: &apos;%2&apos; is not in the list</source>
        <translation>No se acepta %1: «%2» no está en la lista</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in the list</source>
        <translation>«%1» no está en la lista</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in the list: %2</source>
        <translation>&apos;%1&apos; no está en la lista: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::DatePicker</name>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>The latest date is %1</source>
        <translation>La última fecha es %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::DifferenceModel</name>
    <message>
        <source>Item No</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Where the money is</source>
        <translation>Dónde está el dinero</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentFilterScreen</name>
    <message>
        <source>Posted</source>
        <translation>Contabilizado</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentListScreen</name>
    <message>
        <source>&amp;Post...</source>
        <translation>&amp;Contabilizar...</translation>
    </message>
    <message>
        <source>&amp;Reverse...</source>
        <translation>Re&amp;vertir...</translation>
    </message>
    <message>
        <source>Reverse...</source>
        <translation>Revertir...</translation>
    </message>
    <message>
        <source>%1 &amp;Help</source>
        <translation>&amp;Ayuda de %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentPostScreen</name>
    <message>
        <source>%1 of them not in the list</source>
        <translation>%1 de ellos fuera de la lista</translation>
    </message>
    <message>
        <source>%1, last saved by %2</source>
        <translation>%1, guardado por última vez por %2</translation>
    </message>
    <message>
        <source>%n line</source>
        <translation>%n línea</translation>
    </message>
    <message>
        <source>%n lines</source>
        <translation>%n líneas</translation>
    </message>
    <message>
        <source>%1. To look at before:</source>
        <translation>%1. Para revisar antes:</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentScreen</name>
    <message>
        <source>On hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abierto</translation>
    </message>
    <message>
        <source>New Line</source>
        <translation>Nueva línea</translation>
    </message>
    <message>
        <source>Appends a line (Page Down)</source>
        <translation>Añade una línea (Av Pág)</translation>
    </message>
    <message>
        <source>Paste Rows...</source>
        <translation>Pegar filas...</translation>
    </message>
    <message>
        <source>Takes rows of a spreadsheet from the clipboard (Ctrl+Shift+V)</source>
        <translation>Toma del portapapeles filas de una hoja de cálculo (Ctrl+Mayús+V)</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>último %1</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Deshacer eliminación</translation>
    </message>
    <message>
        <source>Enter Passes Over What Is Known</source>
        <translation>Intro pasa por alto lo ya conocido</translation>
    </message>
    <message>
        <source>Rever&amp;se...</source>
        <translation>Re&amp;vertir...</translation>
    </message>
    <message>
        <source>Item Card</source>
        <translation>Ficha de artículo</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos;</source>
        <translation>%1 «%2»</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Ctrl+Z puts back: %1</source>
        <translation>Ctrl+Z recupera: %1</translation>
    </message>
    <message>
        <source>%1 goes below zero at this location</source>
        <translation>%1 queda por debajo de cero en esta ubicación</translation>
    </message>
    <message>
        <source>Enter takes it. %1</source>
        <translation>Intro lo acepta. %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::EntryScreen</name>
    <message>
        <source>Do you want to save changes?</source>
        <translation>¿Desea guardar los cambios?</translation>
    </message>
</context>
<context>
    <name>Tallymere::FieldBinder</name>
    <message>
        <source>%1 cannot show field %2 of table %3.</source>
        <translation>%1 no puede mostrar el campo %2 de la tabla %3.</translation>
    </message>
    <message>
        <source>Another user has changed this since it was shown. Here is what it is now.</source>
        <translation>Otro usuario lo ha modificado desde que se mostró. Ahora se muestra como está.</translation>
    </message>
</context>
<context>
    <name>Tallymere::FigureButton</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::FilterChip</name>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Shows all records again.</source>
        <translation>Vuelve a mostrar todos los registros.</translation>
    </message>
    <message>
        <source>%1
Click to show all records again.</source>
        <translation>%1
Haga clic para volver a mostrar todos los registros.</translation>
    </message>
</context>
<context>
    <name>Tallymere::FilterDialog</name>
    <message>
        <source>&amp;From:</source>
        <translation>D&amp;esde:</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>anywhere in the row</source>
        <translation>en cualquier parte de la fila</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>Pala&amp;bras:</translation>
    </message>
    <message>
        <source>Any day</source>
        <translation>Cualquier día</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::FinderBox</name>
    <message>
        <source>Find Anything</source>
        <translation>Buscar en todo</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Number or any part of a name</source>
        <translation>Número o cualquier parte de un nombre</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Enter opens it, Shift+Enter an item&apos;s card, the arrow keys go along, Esc closes.</source>
        <translation>Intro lo abre, Mayús+Intro abre la ficha de un artículo, las flechas recorren la lista, Esc cierra.</translation>
    </message>
    <message>
        <source>Items, vendors, locations, documents, commands and pages of the manual, by number or by any words.</source>
        <translation>Artículos, proveedores, ubicaciones, documentos, comandos y páginas del manual, por número o por cualquier palabra.</translation>
    </message>
    <message>
        <source>Looking...</source>
        <translation>Buscando...</translation>
    </message>
    <message>
        <source>Nothing has all of these words.</source>
        <translation>Nada contiene todas estas palabras.</translation>
    </message>
</context>
<context>
    <name>Tallymere::HelpWindow</name>
    <message>
        <source>Tallymere Help</source>
        <translation>Ayuda de Tallymere</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>The page before (Alt+Left)</source>
        <translation>La página anterior (Alt+Izquierda)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>The page after (Alt+Right)</source>
        <translation>La página siguiente (Alt+Derecha)</translation>
    </message>
    <message>
        <source>First &amp;Page</source>
        <translation>&amp;Primera página</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>C&amp;ontenido</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Í&amp;ndice</translation>
    </message>
    <message>
        <source>&amp;Look for:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Bu&amp;scar</translation>
    </message>
    <message>
        <source>&amp;Words in the text:</source>
        <translation>Palabras en el &amp;texto:</translation>
    </message>
    <message>
        <source>Enter words and press Enter.</source>
        <translation>Escriba palabras y pulse Intro.</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Páginas encontradas</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>No page has these words. Try fewer, or another form of a word.</source>
        <translation>Ninguna página contiene estas palabras. Pruebe con menos o con otra forma de una palabra.</translation>
    </message>
    <message>
        <source>%n page</source>
        <translation>%n página</translation>
    </message>
    <message>
        <source>%n pages</source>
        <translation>%n páginas</translation>
    </message>
</context>
<context>
    <name>Tallymere::HostWindow</name>
    <message>
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message>
        <source>Receipts, usage, counts and what is in stock</source>
        <translation>Recepciones, consumo, recuentos y existencias</translation>
    </message>
    <message>
        <source>&amp;Data Options</source>
        <translation>Opciones de &amp;datos</translation>
    </message>
    <message>
        <source>Where the data of the company is</source>
        <translation>Dónde están los datos de la empresa</translation>
    </message>
    <message>
        <source>Reload Module</source>
        <translation>Recargar módulo</translation>
    </message>
    <message>
        <source>Begins anew with the inventory as it is installed now</source>
        <translation>Empieza de nuevo con el inventario tal como está instalado ahora</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>A&amp;cerca de Corvane</translation>
    </message>
    <message>
        <source>The version of this program</source>
        <translation>La versión de este programa</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Database:</source>
        <translation>Base de datos:</translation>
    </message>
    <message>
        <source>Inventory module:</source>
        <translation>Módulo de inventario:</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Inventory</source>
        <translation>&amp;Inventario</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Data Options...</source>
        <translation>Opciones de &amp;datos...</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Copia de seguridad...</translation>
    </message>
    <message>
        <source>Re&amp;store...</source>
        <translation>&amp;Restaurar...</translation>
    </message>
    <message>
        <source>&amp;Reload Module</source>
        <translation>Recar&amp;gar módulo</translation>
    </message>
    <message>
        <source>&amp;Unload Module</source>
        <translation>Descargar &amp;módulo</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Unloaded.</source>
        <translation>Descargado.</translation>
    </message>
    <message>
        <source>No company</source>
        <translation>Sin empresa</translation>
    </message>
    <message>
        <source>Corvane - %1</source>
        <translation>Corvane - %1</translation>
    </message>
    <message>
        <source>&amp;Load Module</source>
        <translation>Cargar mód&amp;ulo</translation>
    </message>
    <message>
        <source>&amp;New Company</source>
        <translation>Empresa &amp;nueva</translation>
    </message>
    <message>
        <source>Begin with books of your own</source>
        <translation>Empezar con libros propios</translation>
    </message>
    <message>
        <source>&amp;Open a Folder or Server</source>
        <translation>&amp;Abrir una carpeta o un servidor</translation>
    </message>
    <message>
        <source>Books that are there already</source>
        <translation>Libros que ya existen</translation>
    </message>
    <message>
        <source>&amp;Try the Sample Company</source>
        <translation>&amp;Probar la empresa de ejemplo</translation>
    </message>
    <message>
        <source>A kitchen with a year of receipts, usage and counts, to look around in</source>
        <translation>Una cocina con un año de recepciones, consumos y recuentos para echar un vistazo</translation>
    </message>
    <message>
        <source>Back into an empty folder or a server without books</source>
        <translation>De vuelta a una carpeta vacía o a un servidor sin libros</translation>
    </message>
    <message>
        <source>&amp;New Company...</source>
        <translation>Empresa &amp;nueva...</translation>
    </message>
    <message>
        <source>&amp;Open Company...</source>
        <translation>&amp;Abrir empresa...</translation>
    </message>
    <message>
        <source>Sam&amp;ple Company</source>
        <translation>Empresa de ejem&amp;plo</translation>
    </message>
    <message>
        <source>None has been chosen.</source>
        <translation>No se ha elegido ninguna.</translation>
    </message>
    <message>
        <source>Loaded.</source>
        <translation>Cargado.</translation>
    </message>
    <message>
        <source>Making the sample company in %1</source>
        <translation>Creando la empresa de ejemplo en %1</translation>
    </message>
    <message>
        <source>Restore a &amp;Backup</source>
        <translation>&amp;Restaurar una copia de seguridad</translation>
    </message>
    <message>
        <source>&amp;Check Books</source>
        <translation>Comprobar &amp;libros</translation>
    </message>
</context>
<context>
    <name>Tallymere::ImportRowsGrid</name>
    <message>
        <source>The rows of the file</source>
        <translation>Las filas del archivo</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Qué está mal</translation>
    </message>
</context>
<context>
    <name>Tallymere::InUseNotice</name>
    <message>
        <source>In use by %1. You can read it; it can be changed once it is free.</source>
        <translation>En uso por %1. Puede consultarlo; se podrá modificar cuando esté libre.</translation>
    </message>
</context>
<context>
    <name>Tallymere::ItemBarcodesDialog</name>
    <message>
        <source>Barcode</source>
        <translation>Código de barras</translation>
    </message>
    <message>
        <source>Scan a code of this item, or type it and press Enter.</source>
        <translation>Escanee un código de este artículo o escríbalo y pulse Intro.</translation>
    </message>
    <message>
        <source>Take out the code &apos;%1&apos;?</source>
        <translation>¿Desea quitar el código «%1»?</translation>
    </message>
</context>
<context>
    <name>Tallymere::KeptFilterMenu</name>
    <message>
        <source>&amp;Kept Filters</source>
        <translation>Filtros &amp;guardados</translation>
    </message>
    <message>
        <source>Keep, Rename or Delete...</source>
        <translation>Guardar, cambiar nombre o eliminar...</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Filtros guardados</translation>
    </message>
    <message>
        <source>Filters that you have kept</source>
        <translation>Filtros que ha guardado</translation>
    </message>
</context>
<context>
    <name>Tallymere::KeptFiltersDialog</name>
    <message>
        <source>To keep a filter, set it with Filter first and then give it a name here.</source>
        <translation>Para guardar un filtro, defínalo primero con Filtrar y después póngale aquí un nombre.</translation>
    </message>
    <message>
        <source>The list shows %1</source>
        <translation>La lista muestra: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Qué muestra</translation>
    </message>
    <message>
        <source>You have kept no filter for this list yet.</source>
        <translation>Aún no ha guardado ningún filtro para esta lista.</translation>
    </message>
    <message>
        <source>Delete the filter &apos;%1&apos;?</source>
        <translation>¿Desea eliminar el filtro «%1»?</translation>
    </message>
</context>
<context>
    <name>Tallymere::LineGrid</name>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>No lines yet. Double-click here or press Page Down to enter the first one.</source>
        <translation>Aún no hay líneas. Haga doble clic aquí o pulse Av Pág para introducir la primera.</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListCommands</name>
    <message>
        <source>Not available in this version</source>
        <translation>No disponible en esta versión</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListOutput</name>
    <message>
        <source>Copying...</source>
        <translation>Copiando...</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Guardar como CSV</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Archivos CSV</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>%n row</source>
        <translation>%n fila</translation>
    </message>
    <message>
        <source>%n rows</source>
        <translation>%n filas</translation>
    </message>
    <message>
        <source>%1 saved as %2</source>
        <translation>Guardado: %1, como %2</translation>
    </message>
    <message>
        <source>Save as XLSX</source>
        <translation>Guardar como XLSX</translation>
    </message>
    <message>
        <source>XLSX files</source>
        <translation>Archivos XLSX</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListScreen</name>
    <message>
        <source>Item Card</source>
        <translation>Ficha de artículo</translation>
    </message>
    <message>
        <source>Sort by Column</source>
        <translation>Ordenar por columna</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Save as CSV...</source>
        <translation>Guardar como CSV...</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>&amp;Copiar como texto</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filtrar...</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>%1 (Filtered)</source>
        <translation>%1 (filtrado)</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>Filtrado</translation>
    </message>
    <message>
        <source>No records match the filter. Press Filter to change it.</source>
        <translation>Ningún registro coincide con el filtro. Pulse Filtrar para cambiarlo.</translation>
    </message>
    <message>
        <source>No records match the filter.</source>
        <translation>Ningún registro coincide con el filtro.</translation>
    </message>
    <message>
        <source>No records yet. Press New to add one.</source>
        <translation>Aún no hay registros. Pulse Nuevo para añadir uno.</translation>
    </message>
    <message>
        <source>No records yet.</source>
        <translation>Aún no hay registros.</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>I&amp;mportar...</translation>
    </message>
    <message>
        <source>Take &amp;Back Import...</source>
        <translation>&amp;Deshacer importación...</translation>
    </message>
    <message>
        <source>Save as XLSX...</source>
        <translation>Guardar como XLSX...</translation>
    </message>
    <message>
        <source>Reading the rows of the list</source>
        <translation>Leyendo las filas de la lista</translation>
    </message>
    <message>
        <source>Save &amp;for an Import...</source>
        <translation>Guardar para imp&amp;ortar...</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListStatus</name>
    <message>
        <source>No rows</source>
        <translation>Ninguna fila</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 de %2 filas</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>%1 (filtered)</source>
        <translation>%1 (filtrado)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 seleccionadas</translation>
    </message>
    <message>
        <source>Search: %1</source>
        <translation>Búsqueda: %1</translation>
    </message>
    <message>
        <source>Search: %1 (not found in the filtered rows)</source>
        <translation>Búsqueda: %1 (no encontrado en las filas filtradas)</translation>
    </message>
    <message>
        <source>Search: %1 (not found)</source>
        <translation>Búsqueda: %1 (no encontrado)</translation>
    </message>
    <message>
        <source>Search: %1 (looking, row %2 of %3; Esc stops)</source>
        <translation>Búsqueda: %1 (buscando, fila %2 de %3; Esc detiene)</translation>
    </message>
    <message>
        <source>Reading the rows of the list</source>
        <translation>Leyendo las filas de la lista</translation>
    </message>
</context>
<context>
    <name>Tallymere::MasterListScreen</name>
    <message>
        <source>%1 &amp;Help</source>
        <translation>&amp;Ayuda de %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::MasterRecordScreen</name>
    <message>
        <source>Save and New</source>
        <translation>Guardar y nuevo</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos;</source>
        <translation>%1 «%2»</translation>
    </message>
</context>
<context>
    <name>Tallymere::OptionalDate</name>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
</context>
<context>
    <name>Tallymere::OptionalNumber</name>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Todos&gt;</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
</context>
<context>
    <name>Tallymere::PastedRowsGrid</name>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>Tallymere::RecordListScreen</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Fil&amp;ter</source>
        <translation>&amp;Filtrar</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Registros</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
</context>
<context>
    <name>Tallymere::ReportHolder</name>
    <message>
        <source>The report template file &apos;%1&apos; cannot be read...
%2</source>
        <translation>No se puede leer el archivo de plantilla de informe «%1»...
%2</translation>
    </message>
    <message>
        <source>The printer &apos;%1&apos; has not taken the report.</source>
        <translation>La impresora «%1» no ha aceptado el informe.</translation>
    </message>
</context>
<context>
    <name>Tallymere::ReportWays</name>
    <message>
        <source>&amp;PDF...</source>
        <translation>&amp;PDF...</translation>
    </message>
    <message>
        <source>&amp;CSV...</source>
        <translation>&amp;CSV...</translation>
    </message>
    <message>
        <source>%1 saved as %2</source>
        <translation>Guardado: %1, como %2</translation>
    </message>
    <message>
        <source>&amp;XLSX...</source>
        <translation>&amp;XLSX...</translation>
    </message>
</context>
<context>
    <name>Tallymere::ServerLabel</name>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Connected to the server again at %1.</source>
        <translation>Conectado de nuevo con el servidor a las %1.</translation>
    </message>
    <message>
        <source>No connection to the server since %1. What is typed stays; it will be connected again.</source>
        <translation>Sin conexión con el servidor desde las %1. Lo escrito se conserva; se volverá a conectar.</translation>
    </message>
    <message>
        <source>No connection to the server</source>
        <translation>Sin conexión con el servidor</translation>
    </message>
</context>
<context>
    <name>Tallymere::StepBox</name>
    <message>
        <source>&apos;%1&apos; must not be greater than %2</source>
        <translation>«%1» no debe ser mayor que %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must not be less than %2</source>
        <translation>«%1» no debe ser menor que %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::StockFilterDialog</name>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Item description</source>
        <translation>Descripción de artículo</translation>
    </message>
    <message>
        <source>Item &amp;no.:</source>
        <translation>N.º de artícu&amp;lo:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
</context>
<context>
    <name>Tallymere::StockViewScreen</name>
    <message>
        <source>Fil&amp;ter</source>
        <translation>&amp;Filtrar</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Registros</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;Item no.</source>
        <translation>&amp;N.º de artículo</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Descripción</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormAboutTallymereSystem</name>
    <message>
        <source>About...</source>
        <translation>Acerca de...</translation>
    </message>
    <message>
        <source>Corvane Tallymere Plug-In</source>
        <translation>Complemento Corvane Tallymere</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>For those who help you, a report can be copied.</source>
        <translation>Puede copiar un informe para quienes le ayuden.</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Copiar in&amp;forme</translation>
    </message>
    <message>
        <source>Store: %1</source>
        <translation>Almacenamiento: %1</translation>
    </message>
    <message>
        <source>Data version: %1</source>
        <translation>Versión de los datos: %1</translation>
    </message>
    <message>
        <source>Copied. The report holds versions, no figures and no names.</source>
        <translation>Copiado. El informe contiene versiones, ninguna cifra y ningún nombre.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormEnterInventory</name>
    <message>
        <source>Item No</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Costo estándar</translation>
    </message>
    <message>
        <source>If you change Locations the edits you <byte value="xd"/>
have made to the inventory list will be lost.<byte value="xd"/>
Proceed with changing the Location?</source>
        <translation>Si cambia de ubicación, se perderán los cambios <byte value="xd"/>
que ha hecho en la lista de inventario.<byte value="xd"/>
¿Desea cambiar de ubicación?</translation>
    </message>
    <message>
        <source>You have counted %n item at this location and not calculated the usage yet (%1).
Do you want to go on with that count? No gives it up.</source>
        <translation>Ha contado %n artículo en esta ubicación y aún no ha calculado el consumo (%1).
¿Desea continuar con ese recuento? Si responde No, se descarta.</translation>
    </message>
    <message>
        <source>You have counted %n items at this location and not calculated the usage yet (%1).
Do you want to go on with that count? No gives it up.</source>
        <translation>Ha contado %n artículos en esta ubicación y aún no ha calculado el consumo (%1).
¿Desea continuar con ese recuento? Si responde No, se descarta.</translation>
    </message>
    <message>
        <source>If you change items to be included the edits you <byte value="xd"/>
have made to the inventory list will be lost.<byte value="xd"/>
Proceed with changing the items?</source>
        <translation>Si cambia los artículos que se incluyen, se perderán los cambios <byte value="xd"/>
que ha hecho en la lista de inventario.<byte value="xd"/>
¿Desea cambiar los artículos?</translation>
    </message>
    <message>
        <source>Not while the count is blind</source>
        <translation>No disponible mientras el recuento sea a ciegas</translation>
    </message>
    <message>
        <source>The date is a year back or more: choose a later one</source>
        <translation>Elija una fecha posterior: esta es de hace un año o más</translation>
    </message>
    <message>
        <source>%1 of %2 counted</source>
        <translation>%1 de %2 contados</translation>
    </message>
    <message>
        <source>%1 of %2 counted, %3 differ, value of the difference %4</source>
        <translation>%1 de %2 contados, %3 difieren, valor de la diferencia %4</translation>
    </message>
    <message>
        <source> - not kept on this machine</source>
        <translation> - no guardado en este equipo</translation>
    </message>
    <message>
        <source>There is no stock at this location. &quot;Include Zero Count Items&quot; shows what could be there.</source>
        <translation>No hay existencias en esta ubicación. «Incluir artículos con recuento cero» muestra lo que podría haber.</translation>
    </message>
    <message>
        <source>This location can be counted when its transactions have been posted.</source>
        <translation>Esta ubicación se puede contar cuando sus movimientos estén contabilizados.</translation>
    </message>
    <message>
        <source>Choose the location that is counted.</source>
        <translation>Elija la ubicación que se cuenta.</translation>
    </message>
    <message>
        <source>Counted and not calculated yet: %1</source>
        <translation>Contado y aún sin calcular: %1</translation>
    </message>
    <message>
        <source>Proceed with calculating the item usage based<byte value="xd"/>
upon the quantities that have been entered?</source>
        <translation>¿Desea calcular el consumo de artículos según<byte value="xd"/>
las cantidades introducidas?</translation>
    </message>
    <message>
        <source>%n item has not been counted. It keeps its recorded quantity.</source>
        <translation>%n artículo no se ha contado. Conserva su cantidad registrada.</translation>
    </message>
    <message>
        <source>%n items have not been counted. They keep their recorded quantities.</source>
        <translation>%n artículos no se han contado. Conservan sus cantidades registradas.</translation>
    </message>
    <message>
        <source>Usage %1 has been written, %n line. Post it when it has been looked over.</source>
        <translation>Se ha creado el consumo %1, con %n línea. Contabilícelo cuando lo haya revisado.</translation>
    </message>
    <message>
        <source>Usage %1 has been written, %n lines. Post it when it has been looked over.</source>
        <translation>Se ha creado el consumo %1, con %n líneas. Contabilícelo cuando lo haya revisado.</translation>
    </message>
    <message>
        <source>No item holds less than recorded: no usage has been written.</source>
        <translation>Ningún artículo tiene menos de lo registrado: no se ha creado ningún consumo.</translation>
    </message>
    <message>
        <source>What you have entered has not been calculated.
Do you want to keep it on this machine and go on later?</source>
        <translation>Lo que ha introducido no se ha calculado.
¿Desea guardarlo en este equipo y continuar más tarde?</translation>
    </message>
    <message>
        <source>Enter Inventory</source>
        <translation>Introducir recuento</translation>
    </message>
    <message>
        <source>%1 has counted %2 of this item meanwhile.
Do you want to put %3 in its place?</source>
        <translation>Entretanto %1 ha contado %2 de este artículo.
¿Desea poner %3 en su lugar?</translation>
    </message>
    <message>
        <source>Phones: %1, numbers from them: %2</source>
        <translation>Teléfonos: %1, cantidades recibidas: %2</translation>
    </message>
    <message>
        <source>Phones count this location. What has not come from them yet will not be in the usage.</source>
        <translation>Hay teléfonos contando esta ubicación. Lo que aún no hayan enviado no estará en el consumo.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormMessageInventorySystem</name>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Saving data. Please do not interrupt!</source>
        <translation>Guardando datos. No interrumpa la operación.</translation>
    </message>
    <message>
        <source>Save progress</source>
        <translation>Progreso del guardado</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormRegistryEditor</name>
    <message>
        <source>The language changes when the program is started next.</source>
        <translation>El idioma cambia la próxima vez que se inicie el programa.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>What the program speaks from its next start on</source>
        <translation>El idioma del programa a partir del próximo inicio</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Corvane Data Options</source>
        <translation>Opciones de datos de Corvane</translation>
    </message>
    <message>
        <source>Operation Mode</source>
        <translation>Modo de funcionamiento</translation>
    </message>
    <message>
        <source>File Server</source>
        <translation>Servidor de archivos</translation>
    </message>
    <message>
        <source>Client-Server Engine</source>
        <translation>Motor cliente-servidor</translation>
    </message>
    <message>
        <source>Database location:</source>
        <translation>Ubicación de la base de datos:</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>Server IP Address:</source>
        <translation>Dirección IP del servidor:</translation>
    </message>
    <message>
        <source>ServerType:</source>
        <translation>Tipo de servidor:</translation>
    </message>
    <message>
        <source>Texts that begin with =, +, - or @ get an apostrophe in CSV files, so that no spreadsheet calculates with them</source>
        <translation>Los textos que empiezan por =, +, - o @ llevan un apóstrofo en los archivos CSV, para que ninguna hoja de cálculo los calcule</translation>
    </message>
    <message>
        <source>&amp;Defuse formulas in CSV files</source>
        <translation>&amp;Desactivar fórmulas en archivos CSV</translation>
    </message>
    <message>
        <source>Delete All Settings</source>
        <translation>Eliminar toda la configuración</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <source>Shared Ini Directory:</source>
        <translation>Carpeta ini compartida:</translation>
    </message>
    <message>
        <source>Data Location:</source>
        <translation>Ubicación de los datos:</translation>
    </message>
    <message>
        <source>From the place above onto a server or into another folder</source>
        <translation>Del lugar de arriba a un servidor o a otra carpeta</translation>
    </message>
    <message>
        <source>Copy &amp;Books To...</source>
        <translation>Copiar &amp;libros a...</translation>
    </message>
    <message>
        <source>Lets books that have moved from the place above be changed there again</source>
        <translation>Permite volver a cambiar allí los libros que se trasladaron del lugar de arriba</translation>
    </message>
    <message>
        <source>&amp;Take Up Again...</source>
        <translation>&amp;Retomar...</translation>
    </message>
    <message>
        <source>Choose first where the books are.</source>
        <translation>Elija primero dónde están los libros.</translation>
    </message>
    <message>
        <source>Work with the books there from now on? OK in the data options saves that.</source>
        <translation>¿Trabajar a partir de ahora con los libros de allí? Aceptar en las opciones de datos lo guarda.</translation>
    </message>
    <message>
        <source>The books in %1 have not moved.</source>
        <translation>Los libros de %1 no se han trasladado.</translation>
    </message>
    <message>
        <source>%1

Taken up again they are another set of books than those there: what is entered in the one is not in the other. Take them up again?</source>
        <translation>%1

Retomados, son otros libros distintos de los de allí: lo que se introduce en unos no está en los otros. ¿Retomarlos?</translation>
    </message>
    <message>
        <source>The books in %1 can be changed again.</source>
        <translation>Los libros de %1 se pueden volver a cambiar.</translation>
    </message>
    <message>
        <source>Reports, totals, history, what to buy and the check of the books, from the next start on; what you have saved is always there</source>
        <translation>Informes, totales, historial, qué comprar y la revisión de los libros, desde el próximo inicio; lo que ha guardado está siempre</translation>
    </message>
    <message>
        <source>&amp;Read reports from a standby server</source>
        <translation>Leer los informes de un servidor de re&amp;serva</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormTallymereSystem</name>
    <message>
        <source>Corvane Tallymere</source>
        <translation>Corvane Tallymere</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Other</source>
        <translation>&amp;Otros</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>&amp;Utilities</source>
        <translation>&amp;Utilidades</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Organization Setup</source>
        <translation>Datos de la organización</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Stock As Of</source>
        <translation>Existencias a fecha</translation>
    </message>
    <message>
        <source>Find Anything</source>
        <translation>Buscar en todo</translation>
    </message>
    <message>
        <source>Find items, vendors, documents, commands and more by any words</source>
        <translation>Busca artículos, proveedores, documentos, comandos y más con cualquier palabra</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>What to Buy</source>
        <translation>Qué comprar</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>Reports...</source>
        <translation>Informes...</translation>
    </message>
    <message>
        <source>Help Topics</source>
        <translation>Temas de ayuda</translation>
    </message>
    <message>
        <source>Contents and index of the manual</source>
        <translation>Contenido e índice del manual</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>The requested report template file:<byte value="xd"/>
%1<byte value="xd"/>
could not be found.</source>
        <translation>No se ha encontrado el archivo de plantilla de informe<byte value="xd"/>
%1<byte value="xd"/>
solicitado.</translation>
    </message>
    <message>
        <source>Tallymere</source>
        <translation>Tallymere</translation>
    </message>
    <message>
        <source>The inventory system does not know who is working. The host application has opened it without a window that names its user.</source>
        <translation>El sistema de inventario no sabe quién está trabajando. La aplicación anfitriona lo ha abierto sin una ventana que indique el usuario.</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Sugerencia</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>Tallymere::TableModel</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmAudit</name>
    <message>
        <source>Audit List</source>
        <translation>Lista de auditoría</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Qué se hizo</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Day concerned</source>
        <translation>Día afectado</translation>
    </message>
    <message>
        <source>Fil&amp;ter</source>
        <translation>&amp;Filtrar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Audit List &amp;Help</source>
        <translation>&amp;Ayuda de la lista de auditoría</translation>
    </message>
    <message>
        <source>Audit List Filter</source>
        <translation>Filtro de la lista de auditoría</translation>
    </message>
    <message>
        <source>No notes yet. Deletions by date, opened periods, repairs and restored backups leave one each.</source>
        <translation>Aún no hay notas. Cada eliminación por fecha, período abierto, reparación y copia restaurada deja una.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmBackUp</name>
    <message>
        <source>No backup of this database is known.</source>
        <translation>No se conoce ninguna copia de seguridad de esta base de datos.</translation>
    </message>
    <message>
        <source>%1, by %2</source>
        <translation>%1, por %2</translation>
    </message>
    <message>
        <source>Folder for Daily Backups</source>
        <translation>Carpeta de copias de seguridad diarias</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>Backing up into %1</source>
        <translation>Haciendo la copia de seguridad en %1</translation>
    </message>
    <message>
        <source>%1 holds a backup of %2, which has been verified.</source>
        <translation>%1 contiene una copia de seguridad de %2, que se ha verificado.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmBanksInv</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Bank Book</source>
        <translation>Libro de &amp;banco</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCheckBooks</name>
    <message>
        <source>Check</source>
        <translation>Comprobación</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Qué está mal</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The books have not been checked yet.</source>
        <translation>Los libros aún no se han comprobado.</translation>
    </message>
    <message>
        <source>Checking the books</source>
        <translation>Comprobando los libros</translation>
    </message>
    <message>
        <source>Backup to Make before the Repair</source>
        <translation>Copia de seguridad antes de la reparación</translation>
    </message>
    <message>
        <source>Repairing the books</source>
        <translation>Reparando los libros</translation>
    </message>
    <message>
        <source>There is nothing to mend by now. Nothing has been changed.</source>
        <translation>Ya no hay nada que corregir. No se ha modificado nada.</translation>
    </message>
    <message>
        <source>%n finding mended; before it the books stood as in %1.</source>
        <translation>%n hallazgo corregido; el estado anterior de los libros está en %1.</translation>
    </message>
    <message>
        <source>%n findings mended; before it the books stood as in %1.</source>
        <translation>%n hallazgos corregidos; el estado anterior de los libros está en %1.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCopyBooks</name>
    <message>
        <source>the server %1</source>
        <translation>el servidor %1</translation>
    </message>
    <message>
        <source>Folder to Copy Into</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Choose a folder to copy into.</source>
        <translation>Elija una carpeta de destino.</translation>
    </message>
    <message>
        <source>Enter the address of the server to copy onto.</source>
        <translation>Introduzca la dirección del servidor de destino.</translation>
    </message>
    <message>
        <source>From then on nobody can change anything where the books are now, whatever window is open. Nobody may have a document open at that moment. Move them?</source>
        <translation>A partir de entonces nadie podrá cambiar nada donde están ahora los libros, sea cual sea la ventana abierta. En ese momento nadie puede tener un documento abierto. ¿Trasladarlos?</translation>
    </message>
    <message>
        <source>Moving the books</source>
        <translation>Trasladando los libros</translation>
    </message>
    <message>
        <source>Copying the books</source>
        <translation>Copiando los libros</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The books have moved to %1, and have been verified.</source>
        <translation>Los libros se han trasladado a %1 y se han verificado.</translation>
    </message>
    <message>
        <source>%1 holds a copy of the books, which has been verified.</source>
        <translation>%1 contiene una copia de los libros, que se ha verificado.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCostTrail</name>
    <message>
        <source>Why This Cost: %1</source>
        <translation>Por qué este costo: %1</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Recepciones</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Recepción</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>On hand before</source>
        <translation>Exist. antes</translation>
    </message>
    <message>
        <source>Cost before</source>
        <translation>Costo antes</translation>
    </message>
    <message>
        <source>On hand after</source>
        <translation>Exist. después</translation>
    </message>
    <message>
        <source>Cost after</source>
        <translation>Costo después</translation>
    </message>
    <message>
        <source>Nothing has been received.</source>
        <translation>No se ha recibido nada.</translation>
    </message>
    <message>
        <source>&amp;Print or Save...</source>
        <translation>&amp;Imprimir o guardar...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>. Average cost: %1</source>
        <translation>. Costo promedio: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCountDifferences</name>
    <message>
        <source>What has been counted is as recorded.</source>
        <translation>Lo contado coincide con lo registrado.</translation>
    </message>
    <message>
        <source>Together %1</source>
        <translation>En total %1</translation>
    </message>
    <message>
        <source>Missing: %n item, %1</source>
        <translation>Faltan: %n artículo, %1</translation>
    </message>
    <message>
        <source>Missing: %n items, %1</source>
        <translation>Faltan: %n artículos, %1</translation>
    </message>
    <message>
        <source>Over: %n item, %1</source>
        <translation>Sobran: %n artículo, %1</translation>
    </message>
    <message>
        <source>Over: %n items, %1</source>
        <translation>Sobran: %n artículos, %1</translation>
    </message>
    <message>
        <source>%n of these items has no cost.</source>
        <translation>%n de estos artículos no tiene costo.</translation>
    </message>
    <message>
        <source>%n of these items have no cost.</source>
        <translation>%n de estos artículos no tienen costo.</translation>
    </message>
    <message>
        <source>%n item has not been counted.</source>
        <translation>%n artículo no se ha contado.</translation>
    </message>
    <message>
        <source>%n items have not been counted.</source>
        <translation>%n artículos no se han contado.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmDailyBackup</name>
    <message>
        <source>Daily Backup</source>
        <translation>Copia de seguridad diaria</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Close &amp;Without</source>
        <translation>Cerrar &amp;sin copia</translation>
    </message>
    <message>
        <source>Backup of today, into %1</source>
        <translation>Copia de seguridad de hoy, en %1</translation>
    </message>
    <message>
        <source>The backup of today has been cancelled.</source>
        <translation>Se ha cancelado la copia de seguridad de hoy.</translation>
    </message>
    <message>
        <source>The backup of today: %1</source>
        <translation>La copia de seguridad de hoy: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmDialerInv</name>
    <message>
        <source>Phone &apos;%1&apos;
at %2</source>
        <translation>Llamar a «%1»
al %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmFirstSteps</name>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>This could not be read.</source>
        <translation>No se ha podido leer.</translation>
    </message>
    <message>
        <source>Everything is done.</source>
        <translation>Todo está hecho.</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 de %2 hechos</translation>
    </message>
    <message>
        <source>The first steps are done.</source>
        <translation>Los primeros pasos están hechos.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmImport</name>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>No se usa</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Comprobando %1</translation>
    </message>
    <message>
        <source>The rows have not been checked.</source>
        <translation>Las filas no se han comprobado.</translation>
    </message>
    <message>
        <source>%n row cannot be imported, so none is.</source>
        <translation>%n fila no se puede importar, por lo que no se importa ninguna.</translation>
    </message>
    <message>
        <source>%n rows cannot be imported, so none is.</source>
        <translation>%n filas no se pueden importar, por lo que no se importa ninguna.</translation>
    </message>
    <message>
        <source>%n document can be imported.</source>
        <translation>Se puede importar %n documento.</translation>
    </message>
    <message>
        <source>%n documents can be imported.</source>
        <translation>Se pueden importar %n documentos.</translation>
    </message>
    <message>
        <source>%n record can be imported.</source>
        <translation>Se puede importar %n registro.</translation>
    </message>
    <message>
        <source>%n records can be imported.</source>
        <translation>Se pueden importar %n registros.</translation>
    </message>
    <message>
        <source>Importing %1</source>
        <translation>Importando %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>Check &amp;Rows</source>
        <translation>Comprobar &amp;filas</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvHistory</name>
    <message>
        <source>Inventory History</source>
        <translation>Historial de inventario</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Transaction Description</source>
        <translation>Descripción del movimiento</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Origen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>Abrir &amp;documento</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Abrir documento</translation>
    </message>
    <message>
        <source>Inventory History &amp;Help</source>
        <translation>&amp;Ayuda del historial de inventario</translation>
    </message>
    <message>
        <source>No history yet. Each line of a document shows here when the document has been posted.</source>
        <translation>Aún no hay historial. Cada línea de un documento aparece aquí cuando se contabiliza el documento.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvHistoryFilter</name>
    <message>
        <source>Inventory History Filter</source>
        <translation>Filtro del historial de inventario</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>Añ&amp;o:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>All years</source>
        <translation>Todos los años</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>&amp;Período:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>All periods</source>
        <translation>Todos los períodos</translation>
    </message>
    <message>
        <source>&amp;Transaction Type:</source>
        <translation>T&amp;ipo de movimiento:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvReceipt</name>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>N.º prov.</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Almacén</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvReports</name>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvTotals</name>
    <message>
        <source>Inventory Totals</source>
        <translation>Totales de inventario</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Quantity On Hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Last moved</source>
        <translation>Últ. mov.</translation>
    </message>
    <message>
        <source>Last counted</source>
        <translation>Últ. recuento</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Stock &amp;as of...</source>
        <translation>E&amp;xistencias a fecha...</translation>
    </message>
    <message>
        <source>Inventory Totals &amp;Help</source>
        <translation>&amp;Ayuda de los totales de inventario</translation>
    </message>
    <message>
        <source>No stock yet. What is received shows here when the receipt has been posted.</source>
        <translation>Aún no hay existencias. Lo recibido aparece aquí cuando se contabiliza la recepción.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvTotalsFilter</name>
    <message>
        <source>Inventory Totals Filter</source>
        <translation>Filtro de los totales de inventario</translation>
    </message>
    <message>
        <source>Below zero</source>
        <translation>Menores que cero</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Cero</translation>
    </message>
    <message>
        <source>&amp;Quantity On Hand:</source>
        <translation>E&amp;xistencias:</translation>
    </message>
    <message>
        <source>Quantity On Hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Not moved since</source>
        <translation>Sin movimiento desde</translation>
    </message>
    <message>
        <source>Whenever it has moved</source>
        <translation>Sea cual sea su último movimiento</translation>
    </message>
    <message>
        <source>Not &amp;moved since:</source>
        <translation>Sin &amp;movimiento desde:</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemCard</name>
    <message>
        <source>&amp;Why This Cost...</source>
        <translation>&amp;Por qué este costo...</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Show in &amp;Items</source>
        <translation>Mostrar en &amp;artículos</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Nothing has been posted.</source>
        <translation>No se ha contabilizado nada.</translation>
    </message>
    <message>
        <source>Quantity on hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Nothing has been received.</source>
        <translation>No se ha recibido nada.</translation>
    </message>
    <message>
        <source>Average cost</source>
        <translation>Costo promedio</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Cifras</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Item Card: %1 %2</source>
        <translation>Ficha de artículo: %1 %2</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>suspendido</translation>
    </message>
    <message>
        <source>of its many movements the last of each day is shown</source>
        <translation>de sus muchos movimientos se muestra el último de cada día</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Location %1</source>
        <translation>Ubicación %1</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Costo</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>Last, %1</source>
        <translation>Último, %1</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Waiting to be posted</source>
        <translation>Por contabilizar</translation>
    </message>
    <message>
        <source>%1, %2: %3, then %4 on hand</source>
        <translation>%1, %2: %3, después existencias %4</translation>
    </message>
    <message>
        <source>%1, %2: average cost %3</source>
        <translation>%1, %2: costo promedio %3</translation>
    </message>
    <message>
        <source>%1 on hand</source>
        <translation>%1 en existencia</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemInv</name>
    <message>
        <source>&amp;Barcodes...</source>
        <translation>Códigos de &amp;barras...</translation>
    </message>
    <message>
        <source>Save the item first</source>
        <translation>Guarde primero el artículo</translation>
    </message>
    <message>
        <source>The codes that makers print on it</source>
        <translation>Los códigos que imprime en él el fabricante</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemSearchInv</name>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Tipo de artículo</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Existencias</translation>
    </message>
    <message>
        <source>Item not found. F3 looks for the words anywhere.</source>
        <translation>No se ha encontrado el artículo. F3 busca las palabras en cualquier parte.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemsFilter</name>
    <message>
        <source>Items Filter</source>
        <translation>Filtro de artículos</translation>
    </message>
    <message>
        <source>Item &amp;Type:</source>
        <translation>T&amp;ipo de artículo:</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Suspendido</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemsFind</name>
    <message>
        <source>Find Item</source>
        <translation>Buscar artículo</translation>
    </message>
    <message>
        <source>Item &amp;no.:</source>
        <translation>N.º de artícu&amp;lo:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemsInv</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Registros</translation>
    </message>
    <message>
        <source>Synchronize Items</source>
        <translation>Sincronizar artículos</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Totals</source>
        <translation>&amp;Totales</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmMonthEnd</name>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Period %1, by the calendar</source>
        <translation>Período %1, según el calendario</translation>
    </message>
    <message>
        <source>Period %1</source>
        <translation>Período %1</translation>
    </message>
    <message>
        <source>Open &amp;Period %1</source>
        <translation>Abrir &amp;período %1</translation>
    </message>
    <message>
        <source>This could not be read.</source>
        <translation>No se ha podido leer.</translation>
    </message>
    <message>
        <source>Somebody has opened period %1 meanwhile.</source>
        <translation>Alguien ha abierto entretanto el período %1.</translation>
    </message>
    <message>
        <source>Open period %1? New documents take it from now on.</source>
        <translation>¿Desea abrir el período %1? Los documentos nuevos lo tomarán desde ahora.</translation>
    </message>
    <message>
        <source>Not everything of period %1 is done:

%2

%3</source>
        <translation>No está hecho todo lo del período %1:

%2

%3</translation>
    </message>
    <message>
        <source>Period %1 is open.</source>
        <translation>El período %1 está abierto.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmPasteRows</name>
    <message>
        <source>No location has been chosen yet.</source>
        <translation>Aún no se ha elegido ninguna ubicación.</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Ubicación: %1</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>No se usa</translation>
    </message>
    <message>
        <source>%n row</source>
        <translation>%n fila</translation>
    </message>
    <message>
        <source>%n rows</source>
        <translation>%n filas</translation>
    </message>
    <message>
        <source>%n of %1 rows cannot be taken, so none can.</source>
        <translation>Filas que no se pueden aceptar: %n de %1; por eso no se acepta ninguna.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmPhoneCount</name>
    <message>
        <source>This computer is on no network, so that no phone can reach it.</source>
        <translation>Conecte este equipo a una red: sin ella, ningún teléfono puede acceder a él.</translation>
    </message>
    <message>
        <source>The phone warns of the certificate, which has been made for this count alone: choose to go on. Its SHA-256 begins with %1</source>
        <translation>Elija continuar cuando el teléfono advierta sobre el certificado, creado solo para este recuento. Su SHA-256 empieza por %1</translation>
    </message>
    <message>
        <source>The phones that count now need a new link at another address.
Do you want to change it?</source>
        <translation>Con otra dirección, los teléfonos que cuentan ahora necesitan un enlace nuevo.
¿Desea cambiarla?</translation>
    </message>
    <message>
        <source>Phone %1, without a name yet</source>
        <translation>Teléfono %1, aún sin nombre</translation>
    </message>
    <message>
        <source>%1: %n number</source>
        <translation>%1: %n cantidad</translation>
    </message>
    <message>
        <source>%1: %n numbers</source>
        <translation>%1: %n cantidades</translation>
    </message>
    <message>
        <source>Scan the picture with the phone&apos;s camera. It is good for one phone, on the same network.</source>
        <translation>Escanee la imagen con la cámara del teléfono. Sirve para un solo teléfono, en la misma red.</translation>
    </message>
    <message>
        <source>A phone has used the link. &quot;Another Phone&quot; makes a further one.</source>
        <translation>Un teléfono ha usado el enlace. «Otro teléfono» crea uno más.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmPreview</name>
    <message>
        <source>&amp;PDF...</source>
        <translation>&amp;PDF...</translation>
    </message>
    <message>
        <source>&amp;CSV...</source>
        <translation>&amp;CSV...</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page %1 of %2, incomplete</source>
        <translation>Página %1 de %2, incompleto</translation>
    </message>
    <message>
        <source>Page %1 of %2...</source>
        <translation>Página %1 de %2...</translation>
    </message>
    <message>
        <source>Searched %1 of %2 pages</source>
        <translation>Buscado en %1 de %2 páginas</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Not found in the pages that could be made</source>
        <translation>No encontrado en las páginas que se han podido generar</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 pages</source>
        <translation>Detenido tras %1 de %2 páginas</translation>
    </message>
    <message>
        <source>%n page</source>
        <translation>%n página</translation>
    </message>
    <message>
        <source>%n pages</source>
        <translation>%n páginas</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Guardando %1</translation>
    </message>
    <message>
        <source>Printing on %1</source>
        <translation>Imprimiendo en %1</translation>
    </message>
    <message>
        <source>%1 saved as %2</source>
        <translation>Guardado: %1, como %2</translation>
    </message>
    <message>
        <source>%1 sent to the printer %2</source>
        <translation>Enviado a la impresora %2: %1</translation>
    </message>
    <message>
        <source>&amp;XLSX...</source>
        <translation>&amp;XLSX...</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmRestore</name>
    <message>
        <source>Backup to Restore</source>
        <translation>Copia por restaurar</translation>
    </message>
    <message>
        <source>Backups (*.sqlite);;All files (*)</source>
        <translation>Copias de seguridad (*.sqlite);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Folder to Restore Into</source>
        <translation>Carpeta en la que se restaura</translation>
    </message>
    <message>
        <source>Choose the backup that is to be restored.</source>
        <translation>Elija la copia de seguridad que desea restaurar.</translation>
    </message>
    <message>
        <source>the server %1</source>
        <translation>el servidor %1</translation>
    </message>
    <message>
        <source>The backup has been restored into %1. To work with it, choose that in Data Options.</source>
        <translation>La copia de seguridad se ha restaurado en %1. Para trabajar con ella, elija ese lugar en Opciones de datos.</translation>
    </message>
    <message>
        <source>It is of an older release. When it is opened first these are brought up to date: %1.</source>
        <translation>Es de una versión anterior. Cuando se abra por primera vez se actualizará lo siguiente: %1.</translation>
    </message>
    <message>
        <source>Choose an empty folder to restore into.</source>
        <translation>Elija una carpeta vacía en la que restaurar.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>No existe la carpeta %1.</translation>
    </message>
    <message>
        <source>Restoring into %1</source>
        <translation>Restaurando en %1</translation>
    </message>
    <message>
        <source>Enter the address of the server to restore into.</source>
        <translation>Introduzca la dirección del servidor en el que restaurar.</translation>
    </message>
    <message>
        <source>Restoring into the server %1</source>
        <translation>Restaurando en el servidor %1</translation>
    </message>
    <message>
        <source>The backup has been restored into %1.</source>
        <translation>La copia de seguridad se ha restaurado en %1.</translation>
    </message>
    <message>
        <source>Work with it from now on?</source>
        <translation>¿Trabajar con ella a partir de ahora?</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmStockAsOf</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Day or Period...</source>
        <translation>&amp;Día o período...</translation>
    </message>
    <message>
        <source>Stock As Of</source>
        <translation>Existencias a fecha</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Quantity then</source>
        <translation>Cant. entonces</translation>
    </message>
    <message>
        <source>At today&apos;s cost</source>
        <translation>Al costo de hoy</translation>
    </message>
    <message>
        <source>On hand now</source>
        <translation>Existencias hoy</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Stock As Of &amp;Help</source>
        <translation>&amp;Ayuda de las existencias a fecha</translation>
    </message>
    <message>
        <source>No stock yet. What is received shows here when the receipt has been posted.</source>
        <translation>Aún no hay existencias. Lo recibido aparece aquí cuando se contabiliza la recepción.</translation>
    </message>
    <message>
        <source>Stock As Of Filter</source>
        <translation>Filtro de existencias a fecha</translation>
    </message>
    <message>
        <source>Stock as of %1</source>
        <translation>Existencias a fecha: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmUsages</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Print List...</source>
        <translation>Imprimir &amp;lista...</translation>
    </message>
    <message>
        <source>Print &amp;Selected Usage...</source>
        <translation>Imprimir consumo s&amp;eleccionado...</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Registros</translation>
    </message>
    <message>
        <source>Post...</source>
        <translation>Contabilizar...</translation>
    </message>
    <message>
        <source>Selected Usage</source>
        <translation>Consumo seleccionado</translation>
    </message>
    <message>
        <source>Specified Usage Date</source>
        <translation>Fecha de consumo indicada</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVContact</name>
    <message>
        <source>New Contact at %1</source>
        <translation>Nuevo contacto de %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendor</name>
    <message>
        <source>No contacts yet. Press New to add one.</source>
        <translation>Aún no hay contactos. Pulse Nuevo para añadir uno.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>New vendor must be saved before entering contacts...
Save now?</source>
        <translation>Antes de introducir contactos hay que guardar el nuevo proveedor...
¿Desea guardarlo ahora?</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendors</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>Fac&amp;turas</translation>
    </message>
    <message>
        <source>&amp;Cheques</source>
        <translation>&amp;Cheques</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendorsFilter</name>
    <message>
        <source>Vendors Filter</source>
        <translation>Filtro de proveedores</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Suspendido</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendorsFind</name>
    <message>
        <source>Find Vendor</source>
        <translation>Buscar proveedor</translation>
    </message>
    <message>
        <source>&amp;Vendor no.:</source>
        <translation>N.º de &amp;proveedor:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmWarehousesInv</name>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Registros</translation>
    </message>
    <message>
        <source>Synchronize Locations</source>
        <translation>Sincronizar ubicaciones</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmWhatToBuy</name>
    <message>
        <source>The history is being read.</source>
        <translation>Se está leyendo el historial.</translation>
    </message>
    <message>
        <source>What is in stock lasts long enough.</source>
        <translation>Lo que hay en existencia alcanza.</translation>
    </message>
    <message>
        <source>Nothing has been used in these weeks.</source>
        <translation>No se ha consumido nada en estas semanas.</translation>
    </message>
    <message>
        <source>Reading the history...</source>
        <translation>Leyendo el historial...</translation>
    </message>
    <message>
        <source>%n item to buy</source>
        <translation>%n artículo por comprar</translation>
    </message>
    <message>
        <source>%n items to buy</source>
        <translation>%n artículos por comprar</translation>
    </message>
    <message>
        <source>%1.  Make Receipt: %2</source>
        <translation>%1.  Crear recepción: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::TodayPanel</name>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>This could not be read.</source>
        <translation>No se ha podido leer.</translation>
    </message>
    <message>
        <source>as of %1</source>
        <translation>a las %1</translation>
    </message>
    <message>
        <source>reading...</source>
        <translation>leyendo...</translation>
    </message>
</context>
<context>
    <name>Tallymere::WordsFinding</name>
    <message>
        <source>Searching</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>No row of the list has these words.</source>
        <translation>Ninguna fila de la lista contiene estas palabras.</translation>
    </message>
    <message>
        <source>These words are in row %1 of %2: %3. Enter goes to the next row that has them.</source>
        <translation>Estas palabras están en la fila %1 de %2: %3. Intro pasa a la siguiente fila que las contiene.</translation>
    </message>
</context>
<context>
    <name>TfrmBackUp</name>
    <message>
        <source>Back Up</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>Última copia de seguridad:</translation>
    </message>
    <message>
        <source>A backup is a copy of the whole database in one new file, made while others go on working, and verified.</source>
        <translation>Una copia de seguridad es una copia de toda la base de datos en un archivo nuevo, hecha mientras los demás siguen trabajando, y verificada.</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diaria</translation>
    </message>
    <message>
        <source>One each &amp;day, when the host is closed for the first time</source>
        <translation>Una al &amp;día, la primera vez que se cierre la aplicación anfitriona</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>&amp;Keep the last:</source>
        <translation>Co&amp;nservar las últimas:</translation>
    </message>
    <message>
        <source>older ones are removed</source>
        <translation>las anteriores se eliminan</translation>
    </message>
    <message>
        <source>&amp;Back Up Now...</source>
        <translation>&amp;Hacer copia ahora...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmBankInv</name>
    <message>
        <source>Bank</source>
        <translation>Banco</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmCheckBooks</name>
    <message>
        <source>Check Books</source>
        <translation>Comprobar libros</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Hallazgos</translation>
    </message>
    <message>
        <source>In the figures:</source>
        <translation>En las cifras:</translation>
    </message>
    <message>
        <source>What mends it:</source>
        <translation>Cómo se corrige:</translation>
    </message>
    <message>
        <source>&amp;Check Again</source>
        <translation>&amp;Comprobar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation>&amp;Reparar...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Guardar como</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>&amp;Mostrar en pantalla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>TfrmCompany</name>
    <message>
        <source>Your Organization</source>
        <translation>Su organización</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>Address, second line</source>
        <translation>Dirección, segunda línea</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Teléfono:</translation>
    </message>
    <message>
        <source>Ta&amp;x no.:</source>
        <translation>N.º &amp;fiscal:</translation>
    </message>
    <message>
        <source>Tax or business number</source>
        <translation>Número de identificación fiscal o de empresa</translation>
    </message>
    <message>
        <source>&amp;Fiscal Year:</source>
        <translation>E&amp;jercicio:</translation>
    </message>
    <message>
        <source>Current fiscal year: the calendar year of your last fiscal period</source>
        <translation>Ejercicio actual: el año calendario de su último período fiscal</translation>
    </message>
    <message>
        <source>Year-End...</source>
        <translation>Cierre anual...</translation>
    </message>
    <message>
        <source>Year-End</source>
        <translation>Cierre anual</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;Default Period:</source>
        <translation>&amp;Período predet.:</translation>
    </message>
    <message>
        <source>Period number, 1 to 12</source>
        <translation>Número de período, de 1 a 12</translation>
    </message>
    <message>
        <source>Year, entered as 2 digits</source>
        <translation>Año, introducido con 2 cifras</translation>
    </message>
    <message>
        <source>Default Period (year)</source>
        <translation>Período predeterminado (año)</translation>
    </message>
    <message>
        <source>&amp;Warn if before:</source>
        <translation>Ad&amp;vertir si antes de:</translation>
    </message>
    <message>
        <source>Warn if before (year)</source>
        <translation>Advertir si antes de (año)</translation>
    </message>
    <message>
        <source>War&amp;n if after:</source>
        <translation>Adve&amp;rtir si después de:</translation>
    </message>
    <message>
        <source>Warn if after (year)</source>
        <translation>Advertir si después de (año)</translation>
    </message>
    <message>
        <source>&amp;Error if before:</source>
        <translation>&amp;Error si antes de:</translation>
    </message>
    <message>
        <source>Error if before (year)</source>
        <translation>Error si antes de (año)</translation>
    </message>
    <message>
        <source>E&amp;rror if after:</source>
        <translation>Err&amp;or si después de:</translation>
    </message>
    <message>
        <source>Error if after (year)</source>
        <translation>Error si después de (año)</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predeterminados</translation>
    </message>
    <message>
        <source>Default &amp;Days in which invoice is due:</source>
        <translation>Día&amp;s de vencimiento de factura predet.:</translation>
    </message>
    <message>
        <source>Invoice &amp;Line Items:</source>
        <translation>&amp;Líneas de factura:</translation>
    </message>
    <message>
        <source>Summarized by item</source>
        <translation>Resumidas por artículo</translation>
    </message>
    <message>
        <source>Detailed by delivery date</source>
        <translation>Detalladas por fecha de entrega</translation>
    </message>
    <message>
        <source>&amp;Invoice Format:</source>
        <translation>Formato de fact&amp;ura:</translation>
    </message>
    <message>
        <source>Separate Invoice and Statement</source>
        <translation>Factura y estado de cuenta separados</translation>
    </message>
    <message>
        <source>Integrated Invoice and Statement</source>
        <translation>Factura y estado de cuenta integrados</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>The currency of your main bank account</source>
        <translation>La moneda de su cuenta bancaria principal</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>TfrmCopyBooks</name>
    <message>
        <source>Copy Books</source>
        <translation>Copiar libros</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>Into a &amp;folder that holds no books:</source>
        <translation>A una car&amp;peta sin libros:</translation>
    </message>
    <message>
        <source>Folder to copy into</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>Onto a &amp;server that holds no books:</source>
        <translation>A un &amp;servidor sin libros:</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Link to the server</source>
        <translation>Conexión con el servidor</translation>
    </message>
    <message>
        <source>The books &amp;move: where they are now they can be read, and take no more changes</source>
        <translation>Los libros se &amp;trasladan: donde están ahora se pueden leer y no admiten más cambios</translation>
    </message>
    <message>
        <source>Others can go on working meanwhile. Each table is compared row by row and by its sums, and both sides are checked. A copy that is cancelled cannot be opened; the same goes on with it.</source>
        <translation>Los demás pueden seguir trabajando. Cada tabla se compara fila por fila y por sus sumas, y se comprueban ambos lados. Una copia cancelada no se puede abrir; la misma la continúa.</translation>
    </message>
    <message>
        <source>What has been verified</source>
        <translation>Lo que se ha verificado</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmCountDifferences</name>
    <message>
        <source>Count Differences</source>
        <translation>Diferencias del recuento</translation>
    </message>
    <message>
        <source>Differences, the largest first</source>
        <translation>Diferencias, primero las mayores</translation>
    </message>
    <message>
        <source>&amp;Go to Item</source>
        <translation>&amp;Ir al artículo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>TfrmCurrencyInv</name>
    <message>
        <source>Currency</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Exchange Rate:</source>
        <translation>&amp;Tipo de cambio:</translation>
    </message>
    <message>
        <source>Factor by which to multiply foreign amount</source>
        <translation>Factor por el que se multiplica el importe en moneda extranjera</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmDialerInv</name>
    <message>
        <source>Dialer</source>
        <translation>Marcador</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Configurar...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmDialerSetupInv</name>
    <message>
        <source>Dialer Setup</source>
        <translation>Configurar marcador</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>COM&amp;1</source>
        <translation>COM&amp;1</translation>
    </message>
    <message>
        <source>COM&amp;2</source>
        <translation>COM&amp;2</translation>
    </message>
    <message>
        <source>COM&amp;3</source>
        <translation>COM&amp;3</translation>
    </message>
    <message>
        <source>COM&amp;4</source>
        <translation>COM&amp;4</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmFirstSteps</name>
    <message>
        <source>First Steps</source>
        <translation>Primeros pasos</translation>
    </message>
    <message>
        <source>What new books need, in an order that works. Leave it at any time; it knows from the books how far you are.</source>
        <translation>Lo que necesitan unos libros nuevos, en un orden que funciona. Déjelo cuando quiera; por los libros se sabe hasta dónde ha llegado.</translation>
    </message>
    <message>
        <source>&amp;Do not show this at the start again</source>
        <translation>&amp;No volver a mostrar al inicio</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>TfrmImport</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>&amp;Sheet</source>
        <translation>&amp;Hoja</translation>
    </message>
    <message>
        <source>&amp;Headings in row</source>
        <translation>&amp;Encabezados en la fila</translation>
    </message>
    <message>
        <source>What the columns stand for</source>
        <translation>Qué significan las columnas</translation>
    </message>
    <message>
        <source>Large figures, periods that are not expected and the like are taken without a question</source>
        <translation>Las cifras grandes, los períodos no previstos y casos similares se aceptan sin preguntar</translation>
    </message>
    <message>
        <source>&amp;Take what would be asked about</source>
        <translation>Aceptar &amp;lo que se preguntaría</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmInvAdjustment</name>
    <message>
        <source>Inventory Adjustment</source>
        <translation>Ajuste de inventario</translation>
    </message>
    <message>
        <source>Descri&amp;ption:</source>
        <translation>De&amp;scripción:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>POSTED</source>
        <translation>CONTABILIZADO</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>P&amp;eriod:</source>
        <translation>P&amp;eríodo:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>&amp;Year of Period:</source>
        <translation>Año del perío&amp;do:</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Año del período</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmInvReceipt</name>
    <message>
        <source>Inventory Receipt</source>
        <translation>Recepción de inventario</translation>
    </message>
    <message>
        <source>&amp;Vendor:</source>
        <translation>&amp;Proveedor:</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>N.º proveedor</translation>
    </message>
    <message>
        <source>Vendor name</source>
        <translation>Nombre del proveedor</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Proveedores</translation>
    </message>
    <message>
        <source>&amp;Receipt no.:</source>
        <translation>N.º de &amp;recepción:</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>N.º recepción</translation>
    </message>
    <message>
        <source>POSTED</source>
        <translation>CONTABILIZADO</translation>
    </message>
    <message>
        <source>&amp;Warehouse:</source>
        <translation>A&amp;lmacén:</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Almacén</translation>
    </message>
    <message>
        <source>Warehouses</source>
        <translation>Almacenes</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>&amp;Purchase Order no.:</source>
        <translation>N.º de &amp;orden de compra:</translation>
    </message>
    <message>
        <source>Purchase Order no.</source>
        <translation>N.º orden de compra</translation>
    </message>
    <message>
        <source>P&amp;eriod:</source>
        <translation>P&amp;eríodo:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>&amp;Year of Period:</source>
        <translation>Año del perío&amp;do:</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Año del período</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmInvReports</name>
    <message>
        <source>Inventory Reports</source>
        <translation>Informes de inventario</translation>
    </message>
    <message>
        <source>Choose a report.</source>
        <translation>Elija un informe.</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Ubicación:</translation>
    </message>
    <message>
        <source>Item Type:</source>
        <translation>Tipo de artículo:</translation>
    </message>
    <message>
        <source>Period:</source>
        <translation>Período:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Guardar como</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>&amp;Mostrar en pantalla</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; A&amp;trás</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmItemInv</name>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Item &amp;no.:</source>
        <translation>N.º de artícu&amp;lo:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>Check here to prevent further transactions from being entered</source>
        <translation>Marque aquí para impedir que se introduzcan más movimientos</translation>
    </message>
    <message>
        <source>S&amp;uspended</source>
        <translation>S&amp;uspendido</translation>
    </message>
    <message>
        <source>&amp;Tax Codes:</source>
        <translation>Cód. de &amp;impuesto:</translation>
    </message>
    <message>
        <source>Applicable taxes.  example: PG  (PST and GST)</source>
        <translation>Impuestos aplicables.  Ejemplo: PG  (PST y GST)</translation>
    </message>
    <message>
        <source>Item T&amp;ype:</source>
        <translation>&amp;Tipo de artículo:</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Tipos de artículo</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;Wgt Avg Cost:</source>
        <translation>Costo pr&amp;om. pond.:</translation>
    </message>
    <message>
        <source>Weighted Average Cost (calculated automatically)</source>
        <translation>Costo promedio ponderado (calculado automáticamente)</translation>
    </message>
    <message>
        <source>&amp;Read Only</source>
        <translation>&amp;Solo lectura</translation>
    </message>
    <message>
        <source>&amp;Standard Cost:</source>
        <translation>Costo &amp;estándar:</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmItemSearchInv</name>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Item &amp;no.</source>
        <translation>&amp;N.º de artículo</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Descripción</translation>
    </message>
    <message>
        <source>Item &amp;Type</source>
        <translation>&amp;Tipo de artículo</translation>
    </message>
    <message>
        <source>Find item no.</source>
        <translation>Buscar n.º de artículo</translation>
    </message>
    <message>
        <source>Find description</source>
        <translation>Buscar descripción</translation>
    </message>
    <message>
        <source>Item Type Filter</source>
        <translation>Filtro de tipo de artículo</translation>
    </message>
    <message>
        <source>Item type</source>
        <translation>Tipo de artículo</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artículos</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmItemTypeInv</name>
    <message>
        <source>Item Type</source>
        <translation>Tipo de artículo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Inventory:</source>
        <translation>&amp;Inventario:</translation>
    </message>
    <message>
        <source>Items of this type are stocked</source>
        <translation>Los artículos de este tipo llevan existencias</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Inventario</translation>
    </message>
    <message>
        <source>Default Costing Method</source>
        <translation>Método de costo predeterminado</translation>
    </message>
    <message>
        <source>&amp;Weighted Average</source>
        <translation>&amp;Promedio ponderado</translation>
    </message>
    <message>
        <source>S&amp;tandard</source>
        <translation>&amp;Estándar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmMonthEnd</name>
    <message>
        <source>Month End</source>
        <translation>Cierre de mes</translation>
    </message>
    <message>
        <source>To be &amp;counted since:</source>
        <translation>Debe &amp;contarse desde:</translation>
    </message>
    <message>
        <source>Open &amp;Period</source>
        <translation>Abrir &amp;período</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>TfrmPasteRows</name>
    <message>
        <source>Paste Rows</source>
        <translation>Pegar filas</translation>
    </message>
    <message>
        <source>The &amp;first row has titles</source>
        <translation>La &amp;primera fila tiene títulos</translation>
    </message>
    <message>
        <source>The lines that the rows become</source>
        <translation>Las líneas que resultan de las filas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmPhoneCount</name>
    <message>
        <source>Count on a Phone</source>
        <translation>Contar con teléfono</translation>
    </message>
    <message>
        <source>A&amp;ddress of this computer:</source>
        <translation>&amp;Dirección de este equipo:</translation>
    </message>
    <message>
        <source>&amp;Link for one phone:</source>
        <translation>&amp;Enlace para un teléfono:</translation>
    </message>
    <message>
        <source>The link as a picture to scan</source>
        <translation>El enlace como imagen para escanear</translation>
    </message>
    <message>
        <source>Who &amp;counts:</source>
        <translation>&amp;Quién cuenta:</translation>
    </message>
    <message>
        <source>&amp;Another Phone</source>
        <translation>&amp;Otro teléfono</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>Ends the page and its links; what has come stays in the count</source>
        <translation>Cierra la página y sus enlaces; lo recibido queda en el recuento</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>O&amp;cultar</translation>
    </message>
    <message>
        <source>The phones go on counting</source>
        <translation>Los teléfonos siguen contando</translation>
    </message>
    <message>
        <source>Address of this computer</source>
        <translation>Dirección de este equipo</translation>
    </message>
    <message>
        <source>Link for one phone</source>
        <translation>Enlace para un teléfono</translation>
    </message>
    <message>
        <source>Who counts</source>
        <translation>Quién cuenta</translation>
    </message>
</context>
<context>
    <name>TfrmPreview</name>
    <message>
        <source>Reports</source>
        <translation>Informes</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Page 1 of 1</source>
        <translation>Página 1 de 1</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Ancho</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>Tan ancho como la ventana</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>&amp;Página</translation>
    </message>
    <message>
        <source>One page in the window</source>
        <translation>Una página en la ventana</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Previous Place (Shift+F3)</source>
        <translation>Lugar anterior (Mayús+F3)</translation>
    </message>
    <message>
        <source>↑</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Next Place (F3)</source>
        <translation>Lugar siguiente (F3)</translation>
    </message>
    <message>
        <source>↓</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Guardar como</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>TfrmRestore</name>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>&amp;Backup:</source>
        <translation>&amp;Copia de seguridad:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the backup</source>
        <translation>Elegir la copia de seguridad</translation>
    </message>
    <message>
        <source>Into an empty &amp;folder:</source>
        <translation>En una carpeta &amp;vacía:</translation>
    </message>
    <message>
        <source>Folder to restore into</source>
        <translation>Carpeta en la que se restaura</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>Into a &amp;server without a database:</source>
        <translation>En un &amp;servidor sin base de datos:</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Link to the server</source>
        <translation>Conexión con el servidor</translation>
    </message>
    <message>
        <source>Nothing that exists is written over. The backup is verified before it is used and stays as it is. One of an older release is brought up to date when it is opened first; one of a newer release is refused.</source>
        <translation>No se sobrescribe nada de lo que ya existe. La copia de seguridad se verifica antes de usarla y queda como está. Si es de una versión anterior, se actualiza al abrirla por primera vez; si es de una versión más reciente, se rechaza.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmTaxInv</name>
    <message>
        <source>Tax</source>
        <translation>Impuesto</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Tax Name  (example: PST - Ontario)</source>
        <translation>Nombre del impuesto  (ejemplo: PST - Ontario)</translation>
    </message>
    <message>
        <source>&amp;Rate %:</source>
        <translation>&amp;Tasa %:</translation>
    </message>
    <message>
        <source>Tax Rate %  (example: 7)</source>
        <translation>Tasa de impuesto %  (ejemplo: 7)</translation>
    </message>
    <message>
        <source>Co&amp;de:</source>
        <translation>Có&amp;digo:</translation>
    </message>
    <message>
        <source>Tax Code prints on invoice detail lines</source>
        <translation>El código de impuesto se imprime en las líneas de detalle de la factura</translation>
    </message>
    <message>
        <source>De&amp;scription:</source>
        <translation>De&amp;scripción:</translation>
    </message>
    <message>
        <source>Tax Description prints on invoice footer  (example: PST)</source>
        <translation>La descripción del impuesto se imprime al pie de la factura  (ejemplo: PST)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmUsage</name>
    <message>
        <source>Inventory Usage</source>
        <translation>Consumo de inventario</translation>
    </message>
    <message>
        <source>&amp;Usage no.:</source>
        <translation>&amp;N.º de consumo:</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>N.º consumo</translation>
    </message>
    <message>
        <source>POSTED</source>
        <translation>CONTABILIZADO</translation>
    </message>
    <message>
        <source>D&amp;ate:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>De&amp;scripción:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>P&amp;eriod:</source>
        <translation>P&amp;eríodo:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>&amp;Year of Period:</source>
        <translation>Año del perío&amp;do:</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Año del período</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>P&amp;rinted</source>
        <translation>&amp;Impreso</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmVContact</name>
    <message>
        <source>Vendor Contact</source>
        <translation>Contacto de proveedor</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>&amp;First Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Last:</source>
        <translation>A&amp;pellidos:</translation>
    </message>
    <message>
        <source>&amp;Job Title:</source>
        <translation>Car&amp;go:</translation>
    </message>
    <message>
        <source>&amp;Business 1:</source>
        <translation>&amp;Trabajo 1:</translation>
    </message>
    <message>
        <source>Ext:</source>
        <translation>Ext.:</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensión</translation>
    </message>
    <message>
        <source>Dial this number</source>
        <translation>Marcar este número</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>B&amp;usiness 2:</source>
        <translation>Tra&amp;bajo 2:</translation>
    </message>
    <message>
        <source>Extension 2</source>
        <translation>Extensión 2</translation>
    </message>
    <message>
        <source>&amp;Home:</source>
        <translation>Ca&amp;sa:</translation>
    </message>
    <message>
        <source>Fa&amp;x:</source>
        <translation>Fa&amp;x:</translation>
    </message>
    <message>
        <source>Cellula&amp;r:</source>
        <translation>Mó&amp;vil:</translation>
    </message>
    <message>
        <source>&amp;Pager:</source>
        <translation>B&amp;uscapersonas:</translation>
    </message>
    <message>
        <source>&amp;E-Mail:</source>
        <translation>Corr&amp;eo:</translation>
    </message>
    <message>
        <source>Write to the e-mail address</source>
        <translation>Escribir a la dirección de correo electrónico</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmVendor</name>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Vendor &amp;no.:</source>
        <translation>N.º de pro&amp;veedor:</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Con&amp;tact:</source>
        <translation>Contact&amp;o:</translation>
    </message>
    <message>
        <source>Main contact</source>
        <translation>Contacto principal</translation>
    </message>
    <message>
        <source>A&amp;ddress:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Teléfono:</translation>
    </message>
    <message>
        <source>Dial the phone number</source>
        <translation>Marcar el número de teléfono</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation>Dirección, línea 2</translation>
    </message>
    <message>
        <source>&amp;Fax:</source>
        <translation>&amp;Fax:</translation>
    </message>
    <message>
        <source>Cit&amp;y:</source>
        <translation>C&amp;iudad:</translation>
    </message>
    <message>
        <source>&amp;E-Mail:</source>
        <translation>Corr&amp;eo:</translation>
    </message>
    <message>
        <source>Write to the e-mail address</source>
        <translation>Escribir a la dirección de correo electrónico</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>&amp;State:</source>
        <translation>E&amp;stado:</translation>
    </message>
    <message>
        <source>State/Province/County</source>
        <translation>Estado/provincia/departamento</translation>
    </message>
    <message>
        <source>&amp;Web Page:</source>
        <translation>Página &amp;web:</translation>
    </message>
    <message>
        <source>Open the web page</source>
        <translation>Abrir la página web</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Zip Code:</source>
        <translation>Cód. posta&amp;l:</translation>
    </message>
    <message>
        <source>Co&amp;untry:</source>
        <translation>&amp;País:</translation>
    </message>
    <message>
        <source>Terms, etc.</source>
        <translation>Condiciones, etc.</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Condiciones</translation>
    </message>
    <message>
        <source>&amp;Discount %:</source>
        <translation>&amp;Descuento %:</translation>
    </message>
    <message>
        <source>Discount da&amp;ys:</source>
        <translation>Día&amp;s de descuento:</translation>
    </message>
    <message>
        <source>&amp;Net days:</source>
        <translation>Días &amp;netos:</translation>
    </message>
    <message>
        <source>Default num&amp;ber of days to due date:</source>
        <translation>Días predet. hasta el &amp;vencimiento:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>&amp;Tax no./Business no.:</source>
        <translation>N.º &amp;fiscal/empresa:</translation>
    </message>
    <message>
        <source>De&amp;fault Description:</source>
        <translation>Descripción &amp;predet.:</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Check here to prevent further invoices from being entered</source>
        <translation>Marque aquí para impedir que se introduzcan más facturas</translation>
    </message>
    <message>
        <source>&amp;Suspended</source>
        <translation>S&amp;uspendido</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Contactos</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmWarehouseInv</name>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>TfrmWhatToBuy</name>
    <message>
        <source>What to Buy</source>
        <translation>Qué comprar</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>Weeks of &amp;use:</source>
        <translation>Semanas de consu&amp;mo:</translation>
    </message>
    <message>
        <source>Weeks to &amp;cover:</source>
        <translation>Semanas a &amp;cubrir:</translation>
    </message>
    <message>
        <source>&amp;Also what is in stock</source>
        <translation>&amp;También lo que alcanza</translation>
    </message>
    <message>
        <source>What to buy</source>
        <translation>Qué comprar</translation>
    </message>
    <message>
        <source>Make &amp;Receipt</source>
        <translation>Crear &amp;recepción</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimir...</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Guardar como</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>Mostrar en p&amp;antalla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Transactions</name>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Inventory Adjustment %1</source>
        <translation>Ajuste de inventario %1</translation>
    </message>
    <message>
        <source>New Inventory Adjustment</source>
        <translation>Nuevo ajuste de inventario</translation>
    </message>
    <message>
        <source>Posted adjustments cannot be changed...

To undo an adjustment after posting, you must &quot;reverse&quot; it (enter it again with the opposite amount).</source>
        <translation>Los ajustes contabilizados no se pueden modificar...

Para deshacer un ajuste ya contabilizado debe «revertirlo» (introducirlo de nuevo con el importe contrario).</translation>
    </message>
    <message>
        <source>AdjustmentID already exists</source>
        <translation>El AdjustmentID ya existe</translation>
    </message>
    <message>
        <source>Do you want to save changes?</source>
        <translation>¿Desea guardar los cambios?</translation>
    </message>
    <message>
        <source>Quantities have not been entered</source>
        <translation>No se han introducido cantidades</translation>
    </message>
    <message>
        <source>Location no longer exists</source>
        <translation>La ubicación ya no existe</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>N.º artículo</translation>
    </message>
    <message>
        <source>Inventory Adjustments</source>
        <translation>Ajustes de inventario</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Inventory Adjustments Filter</source>
        <translation>Filtro de ajustes de inventario</translation>
    </message>
    <message>
        <source>Delete adjustment &apos;%1&apos;?</source>
        <translation>¿Desea eliminar el ajuste «%1»?</translation>
    </message>
    <message>
        <source>Unable to delete adjustment &apos;%1&apos;...
It has already been posted</source>
        <translation>No se puede eliminar el ajuste «%1»...
Ya se ha contabilizado</translation>
    </message>
    <message>
        <source>Post Inventory Adjustments</source>
        <translation>Contabilizar ajustes de inventario</translation>
    </message>
    <message>
        <source>Unable to lock Adjustments table... this table is being updated by another job.</source>
        <translation>No se puede bloquear la tabla de ajustes... otro proceso la está actualizando.</translation>
    </message>
    <message>
        <source>A conflicting program is running...
Please close &apos;Inventory Adjustment&apos; form</source>
        <translation>Hay un programa en conflicto en ejecución...
Cierre el formulario «Ajuste de inventario»</translation>
    </message>
    <message>
        <source>Adjustments to post</source>
        <translation>Ajustes por contabilizar</translation>
    </message>
    <message>
        <source>%1 adjustment(s) to be posted</source>
        <translation>%1 ajuste(s) por contabilizar</translation>
    </message>
    <message>
        <source>%n adjustment posted</source>
        <translation>%n ajuste contabilizado</translation>
    </message>
    <message>
        <source>%n adjustments posted</source>
        <translation>%n ajustes contabilizados</translation>
    </message>
    <message>
        <source>Taken out: %1, which was begun and not saved, with %2</source>
        <translation>Se ha quitado: %1, que se empezó y no se guardó, con %2</translation>
    </message>
    <message>
        <source>%n line</source>
        <translation>%n línea</translation>
    </message>
    <message>
        <source>%n lines</source>
        <translation>%n líneas</translation>
    </message>
    <message>
        <source>What has been counted could not be kept in %1: %2</source>
        <translation>No se ha podido guardar en %1 lo que se ha contado: %2</translation>
    </message>
    <message>
        <source>A quantity that has been counted cannot be below zero</source>
        <translation>Una cantidad contada no puede ser menor que cero</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Año del período</translation>
    </message>
    <message>
        <source>Period invalid...
Enter year as 2 digits</source>
        <translation>Período no válido...
Introduzca el año con 2 cifras</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Almacén</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Costo unit.</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; must have a value</source>
        <translation>El campo «%1» debe tener un valor</translation>
    </message>
    <message>
        <source>The line could not be saved because another one was added meanwhile. Try again.</source>
        <translation>Inténtelo de nuevo: no se ha podido guardar la línea porque entretanto se ha añadido otra.</translation>
    </message>
    <message>
        <source>This line was deleted or replaced by another user. The lines are shown anew.</source>
        <translation>Otro usuario ha eliminado o reemplazado esta línea. Las líneas se muestran de nuevo.</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>%1 cannot be put back: %2</source>
        <translation>No se puede recuperar %1: %2</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>Posted</source>
        <translation>Contab.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abierto</translation>
    </message>
    <message>
        <source>%1 before it.</source>
        <translation>Antes de este: %1.</translation>
    </message>
    <message>
        <source>%n document behind it waits to be posted.</source>
        <translation>Detrás de este, %n documento espera que se contabilice.</translation>
    </message>
    <message>
        <source>%n documents behind it wait to be posted.</source>
        <translation>Detrás de este, %n documentos esperan que se contabilicen.</translation>
    </message>
    <message>
        <source>The document had been saved before the connection was lost. Close this screen with Cancel and open the document anew.</source>
        <translation>Cierre esta pantalla con Cancelar y abra de nuevo el documento: se había guardado antes de que se perdiera la conexión.</translation>
    </message>
    <message>
        <source>Another user has changed the lines of this document while the connection was lost. Cancel, and make your changes again.</source>
        <translation>Cancele y haga de nuevo sus cambios: otro usuario ha modificado las líneas de este documento mientras la conexión estaba perdida.</translation>
    </message>
    <message>
        <source>Another document with the key of this new one has been stored meanwhile. Close this screen with Cancel and enter the document anew.</source>
        <translation>Cierre esta pantalla con Cancelar e introduzca de nuevo el documento: entretanto se ha guardado otro documento con la clave de este.</translation>
    </message>
    <message>
        <source>%1

Your changes to the lines stay in the file that was in use. %2</source>
        <translation>%1

Sus cambios en las líneas permanecen en el archivo que estaba en uso. %2</translation>
    </message>
    <message>
        <source>Your changes to the lines could not be taken back:
%1

Unless that is tried again, they stay stored. %2</source>
        <translation>No se han podido deshacer sus cambios en las líneas:
%1

Si no se vuelve a intentar, quedan guardados. %2</translation>
    </message>
    <message>
        <source>The document had been saved before the connection was lost. It stays.</source>
        <translation>El documento se había guardado antes de que se perdiera la conexión. Se conserva.</translation>
    </message>
    <message>
        <source>Another user has changed, posted or deleted the document while the connection was lost. What that user has saved is stored; nothing of it was taken back. Your own changes were: %1</source>
        <translation>Otro usuario ha modificado, contabilizado o eliminado el documento mientras la conexión estaba perdida. Lo que ese usuario ha guardado se conserva; no se ha deshecho nada de ello. Los cambios de usted eran: %1</translation>
    </message>
    <message>
        <source>%n line of it is stored.</source>
        <translation>Está guardada %n línea.</translation>
    </message>
    <message>
        <source>%n lines of it are stored.</source>
        <translation>Están guardadas %n líneas.</translation>
    </message>
    <message>
        <source>%1 was begun and not saved (%2, %3). %4

Go on with it, or take that out? Cancel leaves it as it is; you will be asked again.</source>
        <translation>%1 se empezó y no se guardó (%2, %3). %4

¿Desea continuar o quitarlo? Con Cancelar queda como está y se le preguntará de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>C&amp;ontinuar</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Item not found...
Press Esc or enter a different item no</source>
        <translation>No se ha encontrado el artículo...
Pulse Esc o introduzca otro n.º de artículo</translation>
    </message>
    <message>
        <source>Item has been suspended</source>
        <translation>El artículo está suspendido</translation>
    </message>
    <message>
        <source>Item &apos;%1: %2&apos; has been suspended</source>
        <translation>El artículo «%1: %2» está suspendido</translation>
    </message>
    <message>
        <source>%1...
Make changes or press Esc to undo</source>
        <translation>%1...
Haga cambios o pulse Esc para deshacer</translation>
    </message>
    <message>
        <source>Item not found</source>
        <translation>No se ha encontrado el artículo</translation>
    </message>
    <message>
        <source>Lines changed: %1. Lines added: %2. Lines deleted: %3.</source>
        <translation>Líneas modificadas: %1. Líneas añadidas: %2. Líneas eliminadas: %3.</translation>
    </message>
    <message>
        <source>There are no rows to paste. Copy the cells in the spreadsheet first, then paste them here.</source>
        <translation>No hay filas que pegar. Copie primero las celdas en la hoja de cálculo y péguelas después aquí.</translation>
    </message>
    <message>
        <source>These are %1 rows. A document takes %2 at a time.</source>
        <translation>Son %1 filas. Un documento admite %2 a la vez.</translation>
    </message>
    <message>
        <source>These are %1 columns. Copy %2 at most, with those that a line needs.</source>
        <translation>Son %1 columnas. Copie %2 como máximo, incluidas las que necesita una línea.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>Row %1 cannot be taken: %2</source>
        <translation>La fila %1 no se puede aceptar: %2</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Fila %1: %2</translation>
    </message>
    <message>
        <source>The same is asked of %n further row.</source>
        <translation>Lo mismo se pregunta de %n fila más.</translation>
    </message>
    <message>
        <source>The same is asked of %n further rows.</source>
        <translation>Lo mismo se pregunta de %n filas más.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be posted. Line %2: %3.
Nothing of it has been written. Correct it and post again.</source>
        <translation>«%1» no se puede contabilizar. Línea %2: %3.
No se ha guardado nada de este documento. Corríjalo y contabilice de nuevo.</translation>
    </message>
    <message>
        <source>an amount of money is too large</source>
        <translation>un importe es demasiado grande</translation>
    </message>
    <message>
        <source>In use by %1.</source>
        <translation>En uso por %1.</translation>
    </message>
    <message>
        <source>Unable to lock Item Balance table... this table is being updated by another job.</source>
        <translation>No se puede bloquear la tabla de saldos de artículos... otro proceso la está actualizando.</translation>
    </message>
    <message>
        <source>its location is gone</source>
        <translation>su ubicación ya no existe</translation>
    </message>
    <message>
        <source>%1 has no cost</source>
        <translation>%1 no tiene costo</translation>
    </message>
    <message>
        <source>the average cost of %1 goes from %2 to %3</source>
        <translation>el costo promedio de %1 pasa de %2 a %3</translation>
    </message>
    <message>
        <source>%1: %2 at %3 goes from %4 to %5</source>
        <translation>%1: %2 en %3 pasa de %4 a %5</translation>
    </message>
    <message>
        <source>an item that is gone</source>
        <translation>un artículo que ya no existe</translation>
    </message>
    <message>
        <source>a location that is gone</source>
        <translation>una ubicación que ya no existe</translation>
    </message>
    <message>
        <source>A quantity of %1 cannot be meant. It may be %2 at most, or %3 at least.</source>
        <translation>Una cantidad de %1 no puede ser correcta. Puede ser %2 como máximo o %3 como mínimo.</translation>
    </message>
    <message>
        <source>%1 at a cost of %2 each is more than an amount of money can be</source>
        <translation>%1 a un costo de %2 cada uno supera lo que puede ser un importe</translation>
    </message>
    <message>
        <source>The quantity is %1. A number may have been scanned into the wrong column.
Do you want to keep this quantity?</source>
        <translation>La cantidad es %1. Puede que se haya escaneado un número en la columna equivocada.
¿Desea conservar esta cantidad?</translation>
    </message>
    <message>
        <source>%1 at a cost of %2 each come to %3. A number may have been scanned into the wrong column.
Do you want to keep these figures?</source>
        <translation>%1 a un costo de %2 cada uno suman %3. Puede que se haya escaneado un número en la columna equivocada.
¿Desea conservar estas cifras?</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>N.º recepción</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Proveedor</translation>
    </message>
    <message>
        <source>Vendor no. &apos;%1&apos; has been suspended</source>
        <translation>El proveedor n.º «%1» está suspendido</translation>
    </message>
    <message>
        <source>Vendor &apos;%1: %2&apos; has been suspended</source>
        <translation>El proveedor «%1: %2» está suspendido</translation>
    </message>
    <message>
        <source>Vendor no longer exists</source>
        <translation>El proveedor ya no existe</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; must not be less than zero</source>
        <translation>El campo «%1» no debe ser menor que cero</translation>
    </message>
    <message>
        <source>Last cost from this vendor: %1, on %2</source>
        <translation>Último costo de este proveedor: %1, el %2</translation>
    </message>
    <message>
        <source>Receipt %1</source>
        <translation>Recepción %1</translation>
    </message>
    <message>
        <source>New Inventory Receipt</source>
        <translation>Nueva recepción de inventario</translation>
    </message>
    <message>
        <source>Posted receipts cannot be changed...

To undo a receipt after posting, you must &quot;reverse&quot; it (enter it again with the opposite amount).</source>
        <translation>Las recepciones contabilizadas no se pueden modificar...

Para deshacer una recepción ya contabilizada debe «revertirla» (introducirla de nuevo con el importe contrario).</translation>
    </message>
    <message>
        <source>Receipt no. already exists</source>
        <translation>El n.º de recepción ya existe</translation>
    </message>
    <message>
        <source>Warehouse no longer exists</source>
        <translation>El almacén ya no existe</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Inventory Receipts</source>
        <translation>Recepciones de inventario</translation>
    </message>
    <message>
        <source>PO</source>
        <translation>OC</translation>
    </message>
    <message>
        <source>Inventory Receipts Filter</source>
        <translation>Filtro de recepciones de inventario</translation>
    </message>
    <message>
        <source>Find Receipt</source>
        <translation>Buscar recepción</translation>
    </message>
    <message>
        <source>&amp;Receipt no.:</source>
        <translation>N.º de &amp;recepción:</translation>
    </message>
    <message>
        <source>Receipt &apos;%1&apos; not found</source>
        <translation>No se ha encontrado la recepción «%1»</translation>
    </message>
    <message>
        <source>Delete receipt &apos;%1&apos;?</source>
        <translation>¿Desea eliminar la recepción «%1»?</translation>
    </message>
    <message>
        <source>Unable to delete receipt &apos;%1&apos;...
It has already been posted</source>
        <translation>No se puede eliminar la recepción «%1»...
Ya se ha contabilizado</translation>
    </message>
    <message>
        <source>Vendor no. &apos;%1&apos; not found</source>
        <translation>No se ha encontrado el n.º de proveedor «%1»</translation>
    </message>
    <message>
        <source>Post Inventory Receipts</source>
        <translation>Contabilizar recepciones de inventario</translation>
    </message>
    <message>
        <source>Unable to lock Receipts table... this table is being updated by another job.</source>
        <translation>No se puede bloquear la tabla de recepciones... otro proceso la está actualizando.</translation>
    </message>
    <message>
        <source>Unable to lock Item table... this table is being updated by another job.</source>
        <translation>No se puede bloquear la tabla de artículos... otro proceso la está actualizando.</translation>
    </message>
    <message>
        <source>A conflicting program is running...
Please close &apos;Inventory Receipt&apos; form</source>
        <translation>Hay un programa en conflicto en ejecución...
Cierre el formulario «Recepción de inventario»</translation>
    </message>
    <message>
        <source>Receipts to post</source>
        <translation>Recepciones por contabilizar</translation>
    </message>
    <message>
        <source>%1 receipt(s) to be posted</source>
        <translation>%1 recepción(es) por contabilizar</translation>
    </message>
    <message>
        <source>%n receipt posted</source>
        <translation>%n recepción contabilizada</translation>
    </message>
    <message>
        <source>%n receipts posted</source>
        <translation>%n recepciones contabilizadas</translation>
    </message>
    <message>
        <source>Only a posted document can be reversed</source>
        <translation>Solo se puede revertir un documento contabilizado</translation>
    </message>
    <message>
        <source>Reverses %1</source>
        <translation>Revierte %1</translation>
    </message>
    <message>
        <source>Line %1 cannot be reversed: %2</source>
        <translation>La línea %1 no se puede revertir: %2</translation>
    </message>
    <message>
        <source>the quantity on hand would be too large</source>
        <translation>las existencias serían demasiado grandes</translation>
    </message>
    <message>
        <source>Transactions have been posted since this list was read: %n item of this location has another quantity in the books now.</source>
        <translation>Se han contabilizado movimientos desde que se leyó esta lista: %n artículo de esta ubicación tiene ahora otra cantidad en los libros.</translation>
    </message>
    <message>
        <source>Transactions have been posted since this list was read: %n items of this location have another quantity in the books now.</source>
        <translation>Se han contabilizado movimientos desde que se leyó esta lista: %n artículos de esta ubicación tienen ahora otra cantidad en los libros.</translation>
    </message>
    <message>
        <source>The usage is what the list shows as used, whatever has come or gone meanwhile.</source>
        <translation>El consumo es lo que la lista muestra como consumido, sea lo que sea lo que haya entrado o salido entretanto.</translation>
    </message>
    <message>
        <source>&amp;Read again, keep my count</source>
        <translation>&amp;Leer de nuevo y conservar mi recuento</translation>
    </message>
    <message>
        <source>Error encountered while deducting uposted usage</source>
        <translation>Error al descontar el consumo sin contabilizar</translation>
    </message>
    <message>
        <source>There are unposted transactions for this location.<byte value="xd"/>
You cannot enter the inventory for this location until all<byte value="xd"/>
transactions involving this location have been posted.</source>
        <translation>Esta ubicación tiene movimientos sin contabilizar.<byte value="xd"/>
No puede introducir el inventario de esta ubicación hasta que<byte value="xd"/>
se hayan contabilizado todos los movimientos que la afectan.</translation>
    </message>
    <message>
        <source>The count stays open, so that nothing is lost.</source>
        <translation>El recuento queda abierto para que no se pierda nada.</translation>
    </message>
    <message>
        <source>%n item that has been counted is no longer in the list.</source>
        <translation>%n artículo contado ya no está en la lista.</translation>
    </message>
    <message>
        <source>%n items that have been counted are no longer in the list.</source>
        <translation>%n artículos contados ya no están en la lista.</translation>
    </message>
    <message>
        <source>%n item has been counted above what is recorded now.</source>
        <translation>%n artículo se ha contado por encima de lo registrado ahora.</translation>
    </message>
    <message>
        <source>%n items have been counted above what is recorded now.</source>
        <translation>%n artículos se han contado por encima de lo registrado ahora.</translation>
    </message>
    <message>
        <source>Transactions of this location have been posted since this list was read.</source>
        <translation>Se han contabilizado movimientos de esta ubicación desde que se leyó esta lista.</translation>
    </message>
    <message>
        <source>&amp;Calculate nevertheless</source>
        <translation>Calcular de &amp;todos modos</translation>
    </message>
    <message>
        <source>Somebody has saved transactions for this location since this list was read. They have not been posted yet.</source>
        <translation>Alguien ha guardado movimientos de esta ubicación desde que se leyó esta lista. Aún no se han contabilizado.</translation>
    </message>
    <message>
        <source>Do you want to calculate it nevertheless?</source>
        <translation>¿Desea calcularlo de todos modos?</translation>
    </message>
    <message>
        <source>has no Weighted Average Cost.</source>
        <translation>no tiene costo promedio ponderado.</translation>
    </message>
    <message>
        <source>has no Standard Cost assigned to it.</source>
        <translation>no tiene asignado ningún costo estándar.</translation>
    </message>
    <message>
        <source>%1, Item ID: %2<byte value="xd"/>
%3<byte value="xd"/>
The usage will be calculated with a zero cost.<byte value="xd"/>
You should edit the resulting usage record and <byte value="xd"/>
correct the cost, if necessary.</source>
        <translation>%1, ID de artículo: %2<byte value="xd"/>
%3<byte value="xd"/>
El consumo se calculará con costo cero.<byte value="xd"/>
Edite el registro de consumo resultante y <byte value="xd"/>
corrija el costo si es necesario.</translation>
    </message>
    <message>
        <source>A new usage</source>
        <translation>Un consumo nuevo</translation>
    </message>
    <message>
        <source>There were no unposted usages with an inventory date of %1</source>
        <translation>No había consumos sin contabilizar con fecha de inventario %1</translation>
    </message>
    <message>
        <source>Delete the %1 usage(s) with an inventory date of %2?
This action can&apos;t be reversed!</source>
        <translation>¿Desea eliminar %1 consumo(s) con fecha de inventario %2?
Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>A usage record with an inventory date of %1 is being edited. Please close its screen.</source>
        <translation>Cierre su pantalla: se está modificando un registro de consumo con fecha de inventario %1.</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>N.º consumo</translation>
    </message>
    <message>
        <source>The total of the usage would be more than an amount of money can be</source>
        <translation>El total del consumo superaría lo que puede ser un importe</translation>
    </message>
    <message>
        <source>Inventory Usage %1</source>
        <translation>Consumo de inventario %1</translation>
    </message>
    <message>
        <source>New Inventory Usage</source>
        <translation>Nuevo consumo de inventario</translation>
    </message>
    <message>
        <source>Posted usage records cannot be changed...

To undo usage after posting, you must &quot;reverse&quot; it (enter it again with the opposite amount).</source>
        <translation>Los registros de consumo contabilizados no se pueden modificar...

Para deshacer un consumo ya contabilizado debe «revertirlo» (introducirlo de nuevo con el importe contrario).</translation>
    </message>
    <message>
        <source>Inventory Usage no. already exists</source>
        <translation>El n.º de consumo de inventario ya existe</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>¿Desea guardar los cambios?</translation>
    </message>
    <message>
        <source>No inventory usage has been entered</source>
        <translation>No se ha introducido ningún consumo de inventario</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artículo</translation>
    </message>
    <message>
        <source>Override Description</source>
        <translation>Descripción propia</translation>
    </message>
    <message>
        <source>Ext Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Inventory Usage</source>
        <translation>Consumo de inventario</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Fecha</translation>
    </message>
    <message>
        <source>&amp;Usage no.</source>
        <translation>&amp;N.º de consumo</translation>
    </message>
    <message>
        <source>Inventory Usage Filter</source>
        <translation>Filtro de consumo de inventario</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Moneda:</translation>
    </message>
    <message>
        <source>Find Usage</source>
        <translation>Buscar consumo</translation>
    </message>
    <message>
        <source>&amp;Usage no.:</source>
        <translation>&amp;N.º de consumo:</translation>
    </message>
    <message>
        <source>Usage number &apos;%1&apos; not found</source>
        <translation>No se ha encontrado el consumo número «%1»</translation>
    </message>
    <message>
        <source>Delete usage number&apos;%1&apos;?</source>
        <translation>¿Desea eliminar el consumo número «%1»?</translation>
    </message>
    <message>
        <source>Unable to delete usage %1....
It has been posted and therefore can&apos;t be deleted.</source>
        <translation>No se puede eliminar el consumo %1....
Se ha contabilizado y por eso no se puede eliminar.</translation>
    </message>
    <message>
        <source>A usage record that has been Posted 
can&apos;t be deleted!</source>
        <translation>Un registro de consumo contabilizado 
no se puede eliminar.</translation>
    </message>
    <message>
        <source>Post Inventory Usage Records</source>
        <translation>Contabilizar registros de consumo de inventario</translation>
    </message>
    <message>
        <source>Unable to lock Usage Records table... this table is being updated by another job.</source>
        <translation>No se puede bloquear la tabla de registros de consumo... otro proceso la está actualizando.</translation>
    </message>
    <message>
        <source>A conflicting program is running...
Please close &apos;Usage Record&apos; form</source>
        <translation>Hay un programa en conflicto en ejecución...
Cierre el formulario «Registro de consumo»</translation>
    </message>
    <message>
        <source>Usage to post</source>
        <translation>Consumos por contabilizar</translation>
    </message>
    <message>
        <source>%1 usage record(s) to be posted</source>
        <translation>%1 registro(s) de consumo por contabilizar</translation>
    </message>
    <message>
        <source>%n usage record posted</source>
        <translation>%n registro de consumo contabilizado</translation>
    </message>
    <message>
        <source>%n usage records posted</source>
        <translation>%n registros de consumo contabilizados</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Current Quantity</source>
        <translation>Cant. actual</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must not be less than %2</source>
        <translation>«%1» no debe ser menor que %2</translation>
    </message>
    <message>
        <source>This is more than is recorded. Count the item once more. If it is right, write down what is there, to enter it as an adjustment when the usage of the count has been posted.</source>
        <translation>Cuente otra vez el artículo: es más de lo registrado. Si es correcto, anote lo que hay para introducirlo como ajuste cuando se haya contabilizado el consumo del recuento.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must not be greater than %2</source>
        <translation>«%1» no debe ser mayor que %2</translation>
    </message>
    <message>
        <source>What is recorded is worth very much more or less than this count.
Do you want to keep this quantity?</source>
        <translation>Lo registrado vale mucho más o mucho menos que este recuento.
¿Desea conservar esta cantidad?</translation>
    </message>
    <message>
        <source>%1 reverses %2 already. Reverse it once more?</source>
        <translation>%1 ya revierte %2. ¿Revertirlo otra vez?</translation>
    </message>
    <message>
        <source>That was at &quot;%1&quot;. A check of the books tells what of it has been written.</source>
        <translation>Ocurrió en «%1». Una comprobación de los libros indica qué parte se ha guardado.</translation>
    </message>
</context>
</TS>
